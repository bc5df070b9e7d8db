#include <span>

#include <gmock/gmock.h>

#include "ocore/AnlXlate/XmlForms.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "ocore/OrdoParse/TarvoXmlParser.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "ocore/Resources/Stream.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

using testing::StartsWith;

CXString dtdPath() { return programFolder() + u"ordo-v02025.dtd"; }

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

class XmlWriterTest : public testing::Test {
protected:
    XmlWriterTest() { ZNXMLInterface::Instance(); }

    static std::string written(TarvoXmlParser& parser, bool formatted) {
        ByteBuffer buffer;
        BufferStream output(&buffer);
        parser.convertToXmlStream(output, formatted);
        return {reinterpret_cast<const char*>(buffer.data()), buffer.size()};
    }

    static std::string rewritten(std::string_view document, bool formatted) {
        TarvoXmlParser parser(u"XmlStream", false);
        parser.parse(std::as_bytes(std::span(document)));
        return written(parser, formatted);
    }
};

TEST_F(XmlWriterTest, DocumentsAreWrittenAsTheyWereRead) {
    for (const char* document :
         {"<a/>", "<a b=\"1\" c=\"&lt;&amp;&quot;&#x9;\">text &lt; &gt;<b/>tail</a>",
          "<a><![CDATA[<&]]></a>", "<!--before--><a><!-- in --></a><!--after-->",
          "<?before?><a><?in some data ?></a>",
          "<?xml version=\"1.0\" encoding=\"US-ASCII\" standalone=\"yes\"?>\r\n<a>&#xE4;</a>",
          "<!DOCTYPE a><a/>"}) {
        EXPECT_EQ(rewritten(document, false), document);
    }
    EXPECT_EQ(rewritten("<a></a>", false), "<a/>");
    EXPECT_EQ(rewritten("<!DOCTYPE a [<!ENTITY e \"<b/>x\">]><a>1&e;2&e;</a>", false),
              "<!DOCTYPE a[<!ENTITY e \"<b/>x\">]><a>1<b/>x2<b/>x</a>");
}

TEST_F(XmlWriterTest, FormattingBreaksLinesAroundElements) {
    const Rows<const char*, const char*> rows{
        {"<a><b/><c><d/></c></a>", "\r\n<a>\r\n\t<b/>\r\n\t<c>\r\n\t\t<d/>\r\n\t</c>\r\n</a>"},
        // What begins with text keeps its elements at its own depth, and ends on their line.
        {"<r><a>x<b><c/></b></a></r>",
         "\r\n<r>\r\n\t<a>x\r\n\t<b>\r\n\t\t<c/>\r\n\t</b></a>\r\n</r>"},
        {"<a><b/>x</a>", "\r\n<a>\r\n\t<b/>x</a>"},
        // Only text holds the end tag back.
        {"<a><!--x--><b/></a>", "\r\n<a><!--x-->\r\n<b/>\r\n</a>"},
        {"<a><![CDATA[x]]></a>", "\r\n<a><![CDATA[x]]>\r\n</a>"},
    };
    for (const auto& [document, formatted] : rows) {
        EXPECT_EQ(rewritten(document, true), formatted);
    }
}

TEST(XmlTerminationTest, EndsTheXmlSystemForGood) {
    if (testing::UnitTest::GetInstance()->test_to_run_count() != 1) {
        GTEST_SKIP() << "no document can be made in this process afterwards; run it alone";
    }
    ZNXMLInterface::Terminate(); // nothing to end yet
    ZNXMLInterface::Terminate();
    EXPECT_EQ(&ZNXMLInterface::Instance(), &ZNXMLInterface::Instance());
    useOrdoDtd();
    const std::string ticket = writeOrdo(readOrdo(ordoDocument("")));
    EXPECT_FALSE(ticket.empty());

    ZNXMLInterface::Terminate();
    const std::string ended = "20: ZNXMLInterface::Instance(): XML system already terminated once. "
                              "Process can't create another one!\r\n";
    EXPECT_EQ(ordoFailure([] { ZNXMLInterface::Instance(); }), ended);
    EXPECT_EQ(ordoFailure([&] { readOrdo(ticket); }), ended);
    EXPECT_EQ(ordoFailure([] { ZNXMLInterface::Terminate(); }),
              "21: ZNXMLInterface::Terminate(): Terminate called more than once per process!\r\n");
}

} // namespace
} // namespace zent::test
