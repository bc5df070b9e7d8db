#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

ByteBuffer written(const AttrNodeList& list) {
    ByteBuffer bytes;
    SmallOrdoTranslator().anlToBuffer(list, &bytes);
    return bytes;
}

/// The document around what stands in the root.
ByteBuffer around(const std::string& content) {
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                             R"(<sordo xml:lang="en-US"> )" +
                             content + "</sordo>";
    return {text.data(), text.size()};
}

std::string read(const ByteBuffer& document) {
    AttrNodeList list;
    SmallOrdoTranslator().anlFromBuffer(document, &list);
    return textOfList(list);
}

TEST(SmallOrdoTranslatorTest, NamesAndValuesAreAbbreviated) {
    const Rows<std::string, std::string> rows{
        {"copies=2", R"(<A s="i">2</A>)"},
        {"sides=one-sided", R"(<a s="k">c</a>)"},
        {"job-name=name:Report", R"(<f s="n" xml:space="preserve">Report</f>)"},
        {"page-ranges[value(lower-bound=1 upper-bound=5)]",
         R"(<E s="s"><V s="r"><L s="i">1</L><U s="i">5</U></V></E>)"},
        {"printer-resolution<cross-feed=600 feed-direction=300 units=3>",
         R"(<ay s="o"><C s="i">600</C><F s="i">300</F><T s="i">3</T></ay>)"},
        // An enum has no abbreviation, and neither has what no table knows.
        {"finishings[value=enum:20]", R"(<ci s="s"><V s="e">20</V></ci>)"},
        {"job-priority=50", R"(<job-priority s="i">50</job-priority>)"},
        {"job-priority=none", R"(<job-priority s="k">none</job-priority>)"},
        // The feature of the node before decides within a set, which comes before its own name.
        {"imposition-template=none job-offset[value=none]",
         R"(<D s="k">f</D><cn s="s"><V s="k">f</V></cn>)"},
        // What looks like an abbreviation, or begins with an asterisk, is marked.
        {"job-name=name:c", R"(<f s="n" xml:space="preserve">*c</f>)"},
        {"job-name=name:*c", R"(<f s="n" xml:space="preserve">**c</f>)"},
        {"job-name=name:*", R"(<f s="n" xml:space="preserve">**</f>)"},
        {"!copies=2 sides=one-sided", R"(<a s="k">c</a>)"},
    };
    for (const auto& [text, content] : rows) {
        const AttrNodeList list = listOf(text);
        EXPECT_EQ(written(list), around(content)) << text;
        EXPECT_EQ(read(around(content)), text.starts_with('!') ? "sides=one-sided" : text);
        EXPECT_EQ(textOfList(list), text) << "writing has changed the list";
    }
}

// A reader never comes to the first attribute, so it couldn't tell a code from a text.
TEST(SmallOrdoTranslatorTest, ValuesAfterWhatIsNotReadBackKeepTheirTexts) {
    for (const std::string first :
         {"!anti-aliasing=none", "anti-aliasing=keyword:", "anti-aliasing[]",
          "anti-aliasing[!value=none]", "!anti-aliasing[value=none]",
          "job-priority=50 !anti-aliasing=none"}) {
        std::string ticket = first;
        ticket += " job-offset[value=none]";
        const std::string rest = first.starts_with("job") ? "job-priority=50 " : "";
        EXPECT_EQ(read(written(listOf(ticket))), rest + "job-offset[value=none]") << first;
    }
}

TEST(SmallOrdoTranslatorTest, UnknownCodesStayAsTheyAre) {
    EXPECT_EQ(read(around(R"(<zz s="k">c</zz><a s="q">c</a><A s="i">7</A>)")),
              "zz=c sides=q: copies=7");
}

// No document type rules out what has no syntax.
TEST(SmallOrdoTranslatorTest, ElementsWithoutSyntaxAreSkippedWithAllTheyHold) {
    const Rows<const char*, const char*> rows{
        {"<x y='2'><A s='i'>1</A></x><A s='i'>2</A>", "copies=2"},
        {"text<A s='i'>2</A><!-- x -->", "copies=2"},
        {"<media-col s='c'><d>1</d><a s='k'>c</a></media-col>", "media-col{sides=one-sided}"},
    };
    for (const auto& [content, expected] : rows) {
        EXPECT_EQ(read(around(content)), expected) << content;
    }
}

} // namespace
} // namespace zent::test
