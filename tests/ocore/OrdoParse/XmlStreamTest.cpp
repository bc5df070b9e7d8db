#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"
#include "support/Rows.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

using testing::StartsWith;

CXString dtdPath() { return programFolder() + u"ordo-v02025.dtd"; }

TEST(TarvoXmlDataStreamTest, FailsInATellingOrder) {
    const std::string xml = ordoDocument("");
    AttrNodeList list;
    ByteBuffer buffer;
    XmlOutputBufferCallback callback(&buffer);
    const std::string noBuffer = "8: TarvoXmlDataStream::read(): No buffer to read from!\r\n";
    const std::string noCallback = "9: TarvoXmlDataStream::write(): No output callback object to "
                                   "receive XML data.\r\n";
    const std::string noDtd = "10: TarvoXmlDataStream::createDomDocument(): Validation required "
                              "for OrdoDomDoc, but it is not set. Did you specify a DTD?\r\n";
    const std::string noType = "11: TarvoXmlDataStream::createDomDocument(): Unknown or "
                               "unsupported data type!\r\n";
    for (const auto& [type, failure] :
         Rows<XmlDataType, std::string>{{XmlDataType::ordo, noDtd},
                                        {XmlDataType::notSpecified, noType},
                                        {XmlDataType{6}, noType}}) {
        TarvoXmlDataStream stream(type);
        EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), noBuffer);
        stream.setInputBuffer(nullptr, xml.size());
        EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), noBuffer);
        stream.setInputBuffer(xml.data(), xml.size());
        EXPECT_EQ(ordoFailure([&] { stream.read(&list); }), failure);
        EXPECT_EQ(ordoFailure([&] { stream.write(&list); }), noCallback);
        stream.setOutputCallback(&callback);
        EXPECT_EQ(ordoFailure([&] { stream.write(&list); }), failure);
    }
    EXPECT_TRUE(buffer.isEmpty());
}

TEST(TarvoXmlDataStreamTest, IsNamedAfterItsDocumentTypeOrItsFile) {
    EXPECT_EQ(TarvoXmlDataStream(XmlDataType::ordo, u"").getStreamName(), u"XmlStream");
    EXPECT_EQ(TarvoXmlDataStream(XmlDataType::ordo, u"d").getStreamName(), u"d");
    EXPECT_EQ(TarvoXmlFile().getStreamName(), u"XmlStream");
    EXPECT_EQ(TarvoXmlFile(XmlDataType::ordo, u"f", u"").getStreamName(), u"f");
    EXPECT_EQ(TarvoXmlFile(XmlDataType::ordo, u"f", u"d").getStreamName(), u"d");
}

TEST(TarvoXmlFileTest, WritesAndReadsFiles) {
    const ScratchFolder folder;
    const AttrNodeList list = listOf("copies=2 job-name=name:x");
    folder.write("ticket.xml", std::string(10'000, 'x'));
    TarvoXmlFile(XmlDataType::ordo, folder.file("ticket.xml"), dtdPath()).write(&list);
    useOrdoDtd();
    EXPECT_EQ(folder.read("ticket.xml"), writeOrdo(list));
    AttrNodeList read;
    TarvoXmlFile(XmlDataType::ordo, folder.file("ticket.xml"), dtdPath()).read(&read);
    EXPECT_EQ(textOfList(read), textOfList(list));

    TarvoXmlFile compact(XmlDataType::ordo, folder.file("compact.xml"), dtdPath());
    compact.setFormatted(false);
    compact.write(&list);
    EXPECT_EQ(folder.read("compact.xml").find('\t'), std::string::npos);
}

TEST(TarvoXmlFileTest, SaysWhatItCannotRead) {
    const ScratchFolder folder;
    AttrNodeList list;
    const auto failure = [&](std::optional<CXString> name) {
        return ordoFailure(
            [&] { TarvoXmlFile(XmlDataType::ordo, std::move(name), dtdPath()).read(&list); });
    };
    EXPECT_EQ(failure(std::nullopt), "16: TarvoXmlFile::read(): No file to open.\r\n");
    const CXString missing = folder.file("missing.xml");
    EXPECT_EQ(failure(missing),
              "15: TarvoXmlFile::read(): Failed to open file " + missing.toNarrow() + ".\r\n");
    folder.write("empty.xml", "");
    EXPECT_THAT(failure(folder.file("empty.xml")), StartsWith("8: "));
    folder.write("bad.xml", "<ordo>");
    EXPECT_THAT(failure(folder.file("bad.xml")), StartsWith("2: "));
    folder.write("large.xml", "x");
    std::filesystem::resize_file(folder.path() / "large.xml", 64 * 1024 * 1024 + 1);
    EXPECT_EQ(failure(folder.file("large.xml")),
              "13: TarvoXmlFile::read(): Failed to allocate enough space. Needed 67108865\r\n");
    EXPECT_EQ(textOfList(list), "");
}

TEST(TarvoXmlFileTest, AWritingThatFailsLeavesNoFile) {
    const ScratchFolder folder;
    folder.write("ticket.xml", "from before");
    const AttrNodeList list = listOf("copies=2 nobody-knows=1");
    const auto failure = [&](std::optional<CXString> name) {
        return ordoFailure(
            [&] { TarvoXmlFile(XmlDataType::ordo, std::move(name), dtdPath()).write(&list); });
    };
    EXPECT_THAT(failure(folder.file("ticket.xml")), StartsWith("7: "));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "ticket.xml"));
    EXPECT_EQ(failure(std::nullopt), "18: TarvoXmlFile::write(): No file to open.\r\n");
    EXPECT_EQ(failure(folder.file("no-such-folder/ticket.xml")),
              "17: TarvoXmlFile::write(): Failed to open/create the file.\r\n");
}

} // namespace
} // namespace zent::test
