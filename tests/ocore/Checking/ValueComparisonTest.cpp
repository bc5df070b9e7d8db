#include "ocore/Checking/ValueComparison.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(ValueComparisonTest, ValuesAreRefusedOnPositiveEvidenceOnly) {
    const Rows<const char*, const char*, bool, bool> rows{
        // texts, keywords and names alike
        {"a=white", "a[value=red value=white]", false, true},
        {"a=white", "a[value=red value=name:white]", false, true},
        {"a=name:White", "a[value=red value=white]", false, false},
        {"a=name:own", "a[value=red]", true, true},
        {"a=own", "a[value=red]", true, false},
        {"a=white", "a[!value=white value=red]", false, false},
        {"a=white", "a[]", false, false},
        {"a=name:own", "a[]", true, false},
        {"a=text:white", "a=text:blue", false, false},
        {"a=text:white", "a=blue", false, true},
        // a boolean settles it, an unknown syntax passes on one side only
        {"a=white", "a[value=red value=boolean:true]", false, true},
        {"a=white", "a[value=red value=boolean:false]", false, false},
        {"a=5", "a=boolean:false", false, false},
        {"a=odd:5", "a[value=odd:5]", false, false},
        {"a=5", "a=odd:x", false, true},
        // numbers
        {"a=5", "a(lower-bound=1 upper-bound=5)", false, true},
        {"a=6", "a(lower-bound=1 upper-bound=5)", false, false},
        {"a=6", "a[value(lower-bound=1 upper-bound=5) value(lower-bound=6 upper-bound=6)]", false,
         true},
        {"a=6", "a(lower-bound=1)", false, true},
        {"a=6", "a(lower-bound=1 upper-bound=5)", true, true},
        {"a(lower-bound=2 upper-bound=6)", "a(lower-bound=1 upper-bound=5)", false, false},
        {"a=enum:3", "a[value=enum:4 value=enum:5]", false, false},
        {"a=enum:5", "a[value=enum:4 value=enum:5]", false, true},
        {"a<cross-feed=600 feed-direction=600 units=3>",
         "a[value<cross-feed=300 feed-direction=300 units=3>]", false, false},
        {"a<cross-feed=300 feed-direction=300 units=3>",
         "a[value<cross-feed=300 feed-direction=300 units=3>]", false, true},
        // what can't be read passes
        {"a(lower-bound=x upper-bound=6)", "a[value(lower-bound=1 upper-bound=5)]", false, true},
    };
    for (const auto& [given, offered, userDefined, fits] : rows) {
        const AttrNodeList value = listOf(given);
        const AttrNodeList supported = listOf(offered);
        const AttrValue& read = value.getNodeAt(0).getAttrValue();
        const AttrValue& allowed = supported.getNodeAt(0).getAttrValue();
        SCOPED_TRACE(testing::Message() << given << " among " << offered);
        EXPECT_EQ(compareAttrValues(u"a", read, allowed, userDefined), fits);
        EXPECT_EQ(compareAttrValues(u"a", read, SupportedValues(allowed), userDefined), fits);
    }
}

} // namespace
} // namespace zent::test
