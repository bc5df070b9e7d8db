#include <span>

#include <gmock/gmock.h>

#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/TarvoXmlParser.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "ocore/Resources/Stream.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

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

/// Nodes that no parse of a document with all references expanded gives.
TEST_F(XmlWriterTest, DocumentTypesAndEntitiesNameTheirSources) {
    TarvoXmlParser parser(u"XmlStream", false);
    XmlDocument& document = parser.getDocument();
    XmlNode& type =
        document.append(document.getNode(), XmlNodeKind::documentType, u"a", u"<!-- -->");
    document.addAttribute(type, u"SYSTEM", u"a.dtd");
    document.addAttribute(type, u"PUBLIC", u"-//A");
    XmlNode& entity = document.append(document.getNode(), XmlNodeKind::entity, u"e", {});
    document.addAttribute(entity, u"SYSTEM", u"e.gif");
    document.addAttribute(entity, u"NDATA", u"gif");
    XmlNode& root = document.appendElement(document.getNode(), u"a");
    XmlNode& reference = document.append(root, XmlNodeKind::entityReference, u"r", {});
    document.append(reference, XmlNodeKind::text, {}, u"x");
    document.appendElement(reference, u"b");
    EXPECT_EQ(written(parser, true), "<!DOCTYPE a PUBLIC \"-//A\" SYSTEM \"a.dtd\"[<!-- -->]>"
                                     "<!ENTITY eSYSTEM \"e.gif\"NDATA \"gif\">\r\n"
                                     "\r\n<a>x\r\n\t<b/>\r\n</a>");
}

class Refusing : public Stream {
public:
    bool write(std::string_view /*bytes*/) override { return false; }
};

TEST_F(XmlWriterTest, FailuresSayWhere) {
    TarvoXmlParser parser(u"XmlStream", false);
    parser.parse(std::as_bytes(std::span(std::string_view("<a/>"))));
    EXPECT_EQ(ordoFailure([&] {
                  Refusing output;
                  parser.convertToXmlStream(output, true);
              }),
              "4: TarvoXmlParser::writeChars(): Failed the call to handleOutput() in special "
              "callback object!\r\n");

    TarvoXmlParser other(u"XmlStream", false);
    XmlDocument& document = other.getDocument();
    document.addAttribute(document.append(document.getNode(), XmlNodeKind::xmlDeclaration, {}, {}),
                          u"encoding", u"NO-SUCH-ENCODING");
    EXPECT_THAT(
        ordoFailure([&] { written(other, true); }),
        testing::AllOf(testing::StartsWith("3: TarvoXmlParser::convertToXmlStream(): XMLException "
                                           "during creation of output stream. Message: "),
                       testing::HasSubstr("NO-SUCH-ENCODING")));
}

} // namespace
} // namespace zent::test
