#include <gmock/gmock.h>

#include "ocore/AnlXlate/XmlForms.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "support/OrdoDocument.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

using testing::StartsWith;

CXString dtdPath() { return programFolder() + u"ordo-v02025.dtd"; }

TEST(TarvoXmlDataStreamTest, FailsInATellingOrder) {
    const std::string xml = ordoDocument("");
    AttrNodeList list;
    ByteBuffer buffer;
    BufferStream output(&buffer);
    const std::string noBuffer = "8: TarvoXmlDataStream::read(): No buffer to read from!\r\n";
    const std::string noCallback = "9: TarvoXmlDataStream::write(): No output callback object to "
                                   "receive XML data.\r\n";
    const std::string noDtd = "10: TarvoXmlDataStream::createDomDocument(): Validation required "
                              "for OrdoDomDoc, but it is not set. Did you specify a DTD?\r\n";
    TarvoXmlDataStream stream(xmlForm::ordo);
    EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), noBuffer);
    stream.setInputBuffer(nullptr, xml.size());
    EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), noBuffer);
    stream.setInputBuffer(xml.data(), xml.size());
    EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), noDtd);
    EXPECT_EQ(ordoFailure([&] { stream.write(&list); }), noCallback);
    stream.setOutput(&output);
    EXPECT_EQ(ordoFailure([&] { stream.write(&list); }), noDtd);
    EXPECT_TRUE(buffer.isEmpty());
}

TEST(TarvoXmlFileTest, SaysWhatItCannotRead) {
    const ScratchFolder folder;
    folder.write("empty.xml", "");
    folder.write("bad.xml", "<ordo>");
    folder.write("large.xml", "x");
    std::filesystem::resize_file(folder.path() / "large.xml", 64 * 1024 * 1024 + 1);
    const CXString missing = folder.file("missing.xml");
    const Rows<std::optional<CXString>, std::string> rows{
        {std::nullopt, "16: TarvoXmlFile::read(): No file to open.\r\n"},
        {missing, "15: TarvoXmlFile::read(): Failed to open file " + missing.toNarrow() + ".\r\n"},
        {folder.file("empty.xml"), "8: "},
        {folder.file("bad.xml"), "2: "},
        {folder.file("large.xml"),
         "13: TarvoXmlFile::read(): Failed to allocate enough space. Needed 67108865\r\n"},
    };
    for (const auto& [name, failure] : rows) {
        AttrNodeList list;
        TarvoXmlFile file(xmlForm::ordo, name, dtdPath());
        EXPECT_THAT(ordoFailure([&] { file.read(&list); }), StartsWith(failure));
        EXPECT_EQ(textOfList(list), "");
    }
}

TEST(TarvoXmlFileTest, AWritingThatFailsLeavesNoFile) {
    const ScratchFolder folder;
    folder.write("ticket.xml", "from before");
    const AttrNodeList list = listOf("copies=2 nobody-knows=1");
    const Rows<std::optional<CXString>, std::string> rows{
        {folder.file("ticket.xml"), "7: "},
        {std::nullopt, "18: TarvoXmlFile::write(): No file to open.\r\n"},
        {folder.file("no-such-folder/ticket.xml"),
         "17: TarvoXmlFile::write(): Failed to open/create the file.\r\n"},
    };
    for (const auto& [name, failure] : rows) {
        TarvoXmlFile file(xmlForm::ordo, name, dtdPath());
        EXPECT_THAT(ordoFailure([&] { file.write(&list); }), StartsWith(failure));
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "ticket.xml"));
}

} // namespace
} // namespace zent::test
