#include <map>

#include <gmock/gmock.h>

#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

using testing::HasSubstr;
using testing::Not;

class OrdoWriteTest : public testing::Test {
protected:
    OrdoWriteTest() { useOrdoDtd(); }
};

TEST_F(OrdoWriteTest, ATicketIsLaidOutLineByLine) {
    const AttrNodeList list =
        listOf("job-name=name:Report copies=2 page-ranges[value(lower-bound=1 upper-bound=5)] "
               "media-col{media-size{x-dimension=21000 y-dimension=29700}}");
    const std::string golden = readTestFile("golden/ordo/report.xml");
    EXPECT_EQ(writeOrdo(list), golden);
    EXPECT_EQ(writeOrdo(list), golden) << "also the second time";
    EXPECT_EQ(textOfList(readOrdo(golden)), textOfList(list));
}

/// What stands in the root, without the line breaks and tabs.
std::string contentOf(const AttrNodeList& list) {
    std::string text = writeOrdo(list);
    text = text.substr(text.find("\"en-US\">") + 8);
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n' || c == '\t'; });
    return text.substr(0, text.size() - std::string("</ordo>").size());
}

/// The element of one attribute.
std::string elementOf(const AttrValue& value) {
    AttrNodeList list;
    list.addNode(AttrNode(AttrID(u"copies"), value, false));
    std::string text = writeOrdo(list);
    text = text.substr(text.find("<copies"));
    return text.substr(0, text.find("\r\n\t</job-template-attributes>"));
}

TEST_F(OrdoWriteTest, TextsAreEscapedAndWhatXmlCannotHoldIsReplaced) {
    const std::map<std::u16string, std::string> rows = {
        {u"a & b < c > d \" e ' f", "a &amp; b &lt; c &gt; d \" e ' f"},
        {u"]]>", "]]&gt;"},
        {u"\ta\nb\r", "\ta\nb&#xD;"},
        {u"\u00E4\u20AC", "\xC3\xA4\xE2\x82\xAC"},
        {u"\U0001D11E", "\xF0\x9D\x84\x9E"},
        {std::u16string(u"\0\x1\x1F", 3), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {u"\xFFFE\xFFFF\x7F", "\xEF\xBF\xBD\xEF\xBF\xBD\x7F"},
        {u"\xD834", "\xEF\xBF\xBD"},
        {u"a\xDD1E\xD834", "a\xEF\xBF\xBD\xEF\xBF\xBD"},
        {u"\xD834\xD834\xDD1E", "\xEF\xBF\xBD\xF0\x9D\x84\x9E"},
    };
    for (const auto& [text, bytes] : rows) {
        EXPECT_EQ(elementOf(IppKeyword(CXString(text))),
                  "<copies syntax=\"keyword\">" + bytes + "</copies>");
    }
    EXPECT_EQ(
        elementOf(IppNull(u"&\"<>'\t\n\r\x1\xD834")),
        "<copies syntax=\"&amp;&quot;&lt;>'&#x9;&#xA;&#xD;\xEF\xBF\xBD\xEF\xBF\xBD\"></copies>");
}

TEST_F(OrdoWriteTest, NamesComeBackAsTheyWere) {
    const std::u16string longText(100'000, u'\u20AC');
    std::u16string mixed;
    for (int i = 0; i < 200'000; ++i) {
        mixed += i % 7 == 0 ? u"\u00E4\U0001D11Ex" : u"\u00E4\U0001D11E";
    }
    for (const std::u16string& text : {std::u16string(u" \r\n\t<&>\"' \U0001D11E\r"), mixed,
                                       longText, longText + u"\U0001D11E&", u"&" + longText}) {
        AttrNodeList list;
        list.addValue(syntax::name, CXString(text), AttrID(u"job-name"));
        const AttrNodeList read = readOrdo(writeOrdo(list));
        ASSERT_EQ(read.getNumberOfNodes(), 1U);
        EXPECT_TRUE(read.getNodeAt(0).getAttrValue().getIppValue() == text);
    }
}

TEST_F(OrdoWriteTest, AttributesWithoutACategoryFail) {
    EXPECT_EQ(ordoFailure([] { writeOrdo(listOf("copies=1 nobody-knows=2")); }),
              "7: OrdoDomDoc::getParentNode(): No ORDO category for nobody-knows!\r\n");
    // Below the top, nobody asks.
    EXPECT_THAT(contentOf(listOf("media-col{nobody-knows=2}")), HasSubstr("<nobody-knows"));
}

TEST_F(OrdoWriteTest, NamesThatXmlDoesNotAllowFail) {
    for (const char* name : {"a b", "1st", "<", "-a"}) {
        AttrNodeList list;
        list.addCollection(AttrID(u"media-col"))->addInteger(1, AttrID(CXString(name)));
        EXPECT_EQ(ordoFailure([&] { writeOrdo(list); }),
                  "6: TarvoDomDoc::addAttrNodeToDOMTree(): DOM_DOMException exception during DOM "
                  "node creation. Exception code is INVALID_CHARACTER_ERR.\r\n");
    }
}

} // namespace
} // namespace zent::test
