#include "ocore/AnlXlate/SmallOrdoTranslator.h"

#include <string>

#include <gtest/gtest.h>

#include "support/ListText.h"

namespace zent::test {
namespace {

std::string written(const AttrNodeList& list) {
    ByteBuffer bytes;
    SmallOrdoTranslator().anlToBuffer(list, &bytes);
    const std::string text(static_cast<const char*>(static_cast<const void*>(bytes.data())),
                           bytes.size());
    const std::string begin = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                              R"(<sordo xml:lang="en-US"> )";
    const std::string end = "</sordo>";
    EXPECT_TRUE(text.starts_with(begin) && text.ends_with(end)) << text;
    return text.substr(begin.size(), text.size() - begin.size() - end.size());
}

std::string writtenAndRead(const AttrNodeList& list) {
    ByteBuffer bytes;
    SmallOrdoTranslator().anlToBuffer(list, &bytes);
    AttrNodeList read;
    SmallOrdoTranslator().anlFromBuffer(bytes, &read);
    return textOfList(read);
}

struct Row {
    const char* list;
    const char* document;
};

TEST(SmallOrdoTranslatorTest, NamesAndValuesAreAbbreviated) {
    const Row rows[] = {
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
    for (const Row& row : rows) {
        const AttrNodeList list = listOf(row.list);
        EXPECT_EQ(written(list), row.document) << row.list;
        const std::string visible = row.list[0] == '!' ? "sides=one-sided" : row.list;
        EXPECT_EQ(writtenAndRead(list), visible);
        EXPECT_EQ(textOfList(list), row.list) << "writing has changed the list";
    }
}

TEST(SmallOrdoTranslatorTest, UnknownCodesStayAsTheyAre) {
    const std::string document = R"(<sordo><zz s="k">c</zz><a s="q">c</a><A s="i">7</A></sordo>)";
    AttrNodeList list;
    SmallOrdoTranslator().anlFromBuffer(ByteBuffer(document.data(), document.size()), &list);
    ASSERT_EQ(list.getNumberOfNodes(), 3U);
    EXPECT_TRUE(list.isNodeAt(AttrID(u"zz"), 0));
    EXPECT_EQ(list.getNodeAt(0).getAttrValue().getIppValue(), u"c");
    EXPECT_EQ(list.getNodeAt(1).getAttrValue().getIppSyntax(), u"q");
    EXPECT_TRUE(list.isNodeAt(AttrID(u"copies"), 2));
}

} // namespace
} // namespace zent::test
