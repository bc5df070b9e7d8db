#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

class OrdoReadTest : public testing::Test {
protected:
    OrdoReadTest() { useOrdoDtd(); }
};

/// The list in a document, or why there is none.
std::string read(const std::string& document) {
    std::string text;
    const std::string failure = ordoFailure([&] { text = textOfList(readOrdo(document)); });
    return failure == "nothing was raised" ? text : failure;
}

TEST_F(OrdoReadTest, ElementsBecomeNodes) {
    const Rows<const char*, const char*> rows{
        {"<copies syntax='integer'>2</copies><sides syntax='keyword'>one-sided</sides>",
         "copies=2 sides=one-sided"},
        {"<orientation-requested syntax='enum'>4</orientation-requested>"
         "<toner-saver syntax='boolean'>true</toner-saver>",
         "orientation-requested=enum:4 toner-saver=boolean:true"},
        {"<page-ranges syntax='1setOf'>\n<value syntax='rangeOfInteger'>"
         "<lower-bound syntax='integer'>1</lower-bound> <upper-bound syntax='integer'>5"
         "</upper-bound></value></page-ranges>",
         "page-ranges[value(lower-bound=1 upper-bound=5)]"},
        // White space counts where it is marked, whatever the syntax.
        {"<sides syntax=' keyword '>\r\n\t one-sided\n</sides>", "sides=one-sided"},
        {"<sides syntax='keyword' xml:space='preserve'> a </sides>", "sides= a "},
        {"<job-name syntax='name'> a </job-name>", "job-name=name:a"},
        {"<job-name syntax='name' xml:space='default'> a </job-name>", "job-name=name:a"},
        {"<job-name syntax='name' xml:space='preserve'>\r\n a \t</job-name>",
         "job-name=name:\n a \t"},
        {"<job-name syntax='name' xml:space='preserve'>  </job-name>", "job-name=name:  "},
        // Nothing at all is no value, and white space makes an empty list.
        {"<job-name syntax='name'></job-name><copies syntax='integer'/>", ""},
        {"<media-col syntax='collection'/><media-col syntax='collection'> </media-col>",
         "media-col{}"},
        // The first child tells.
        {"<document-format syntax='1setOf'><value syntax='keyword'>a<value syntax='integer'>1"
         "</value></value></document-format>",
         "document-format[value=a]"},
        {"<document-format syntax='1setOf'><value syntax='collection'>"
         "<copies syntax='integer'>1</copies>text</value></document-format>",
         "document-format[value{copies=1}]"},
        {"<copies syntax='integer'><!--3-->2</copies>", "copies=3"},
        {"<copies syntax='integer'>2<!--3-->4</copies>", "copies=2"},
        {"<job-name syntax='name'><![CDATA[<a> & b]]></job-name>", "job-name=name:<a> & b"},
        {"<job-name syntax='name'>a<![CDATA[b]]></job-name>", "job-name=name:a"},
        // References are part of the text around them.
        {"<job-name syntax='name'>a&amp;&lt;b&#x2B;&#10;c</job-name>", "job-name=name:a&<b+\nc"},
        // What isn't known stays by its name and keyword.
        {"<copies syntax='dateTime'>now</copies>", "copies=dateTime:"},
        {"<toner-saver syntax='boolean'>TRUE</toner-saver><copies syntax='integer'>x"
         "</copies>",
         "toner-saver=boolean:false copies=0"},
    };
    for (const auto& [attributes, list] : rows) {
        EXPECT_EQ(read(ordoTicket(attributes)), list) << attributes;
    }
    // An element of white space is a list of its syntax, whatever that is.
    const AttrNodeList list = readOrdo(ordoTicket("<copies syntax='integer'> </copies>"));
    EXPECT_TRUE(list.getNodeAt(0).getAttrValue().isList());
    EXPECT_EQ(list.getNodeAt(0).getAttrValue().getIppSyntax(), u"integer");
}

/// The text of the first node.
std::u16string textIn(const std::string& document) {
    const AttrNodeList list = readOrdo(document);
    return std::u16string(list.getNodeAt(0).getAttrValue().getIppValue().view());
}

TEST_F(OrdoReadTest, TheDocumentSaysItsEncoding) {
    const std::string ticket = ordoTicket("<job-name syntax='name'>\xC3\xA4</job-name>");
    EXPECT_EQ(textIn(ticket), u"\u00E4");
    EXPECT_EQ(textIn("\xEF\xBB\xBF" + ticket), u"\u00E4");

    std::string latin = ticket;
    latin.replace(latin.find("UTF-8"), 5, "ISO-8859-1");
    latin.replace(latin.find("\xC3\xA4"), 2, "\xE4");
    EXPECT_EQ(textIn(latin), u"\u00E4");

    latin.replace(latin.find("ISO-8859-1"), 10, "UTF-16");
    for (const bool isBigEndian : {false, true}) {
        std::string wide = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : latin) { // the first 256 characters are those of Latin-1
            wide += isBigEndian ? '\0' : c;
            wide += isBigEndian ? c : '\0';
        }
        EXPECT_EQ(textIn(wide), u"\u00E4") << isBigEndian;
    }
}

TEST_F(OrdoReadTest, AddsToTheListAndLeavesItAloneOnAnError) {
    AttrNodeList list = listOf("sides=one-sided");
    const auto add = [&](const char* attributes) {
        const std::string ticket = ordoTicket(attributes);
        OrdoTranslator().anlFromBuffer(ByteBuffer(ticket.data(), ticket.size()), &list);
    };
    EXPECT_THROW(add("<copies syntax='integer'>2</copies><nonsense/>"), OrdoParseException);
    EXPECT_EQ(textOfList(list), "sides=one-sided");
    // A list with text fails as its value does.
    EXPECT_EQ(raised<UnknownCaseException>([&] {
                  add("<copies syntax='integer'>2</copies>"
                      "<document-format syntax='collection'>a</document-format>"
                      "<sides syntax='keyword'>x</sides>");
              }),
              "AttrValueFactory::createSimpleAttrValue(AVTE): unhandled attribute value "
              "enumeration (10).\r\n");
    EXPECT_EQ(textOfList(list), "sides=one-sided copies=2") << "what came before stays";
}

} // namespace
} // namespace zent::test
