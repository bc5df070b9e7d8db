#include "ocore/FeatureSettings/FeatureSettings.h"

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const _FI copies(feature::copies);
const _FI coverFront(feature::coverFront);
const _FI overrides(feature::pageOverrides);

FeatureSettings ticketOf(const char* text) { return FeatureSettings(listOf(text)); }
std::string textOf(const Settings& ticket) { return textOfList(*ticket.getAttrNodeList()); }

// What is stored may be the ticket itself, or lie in it.
TEST(FeatureSettingsTest, NestedSettingsAreStoredAsACopy) {
    FeatureSettings ticket = ticketOf("copies=1 page-overrides[value{copies=2} value{copies=3}]");
    ticket.setNestedSettings(coverFront, ticket.getNestedSettings(overrides, 1));
    ticket.setNestedSettings(overrides, ticket.getNestedSettings(overrides, 1), 0);
    EXPECT_EQ(textOf(ticket),
              "copies=1 page-overrides[value{copies=3} value{copies=3}] cover-front{copies=3}");
    FeatureSettings small = ticketOf("copies=1");
    small.setNestedSettings(coverFront, small);
    small.setNestedSettings(coverFront, small);
    EXPECT_EQ(textOf(small), "copies=1 cover-front{copies=1 cover-front{copies=1}}");
}

TEST(FeatureSettingsTest, PageOverridesBeginWithTheirRanges) {
    const char* const shaped =
        "page-overrides[value{input-documents[value(lower-bound=1 upper-bound=1)] "
        "pages[value(lower-bound=2 upper-bound=3)] copies=5}]";
    const Rows<const char*, bool, const char*> rows{
        {"copies=1", false, "copies=1"},
        {"page-overrides[]", false, "page-overrides[]"},
        {shaped, false, shaped},
        {"page-overrides[value{copies=5 pages[value(lower-bound=2 upper-bound=3)]}]", true, shaped},
        // Without pages there is nothing to put in the second place, and each run counts as a
        // change.
        {"page-overrides[value{input-documents[value(lower-bound=1 upper-bound=1)] copies=5}]",
         true,
         "page-overrides[value{input-documents[value(lower-bound=1 upper-bound=1)] copies=5}]"},
        {"page-overrides[value{input-documents[]} other=1 value{}]", true,
         "page-overrides[value{input-documents[value(lower-bound=1 upper-bound=1)]} other=1 "
         "value{input-documents[value(lower-bound=1 upper-bound=1)]}]"},
    };
    for (const auto& [before, changed, after] : rows) {
        FeatureSettings ticket = ticketOf(before);
        EXPECT_EQ(ticket.normalizePageOverrides(), changed) << before;
        EXPECT_EQ(textOf(ticket), after);
    }
    // A member that is no ticket, wherever it stands.
    for (const char* ticket : {"page-overrides[value=1]", "page-overrides[a=1 b=2 value=1]",
                               "page-overrides[value{} value=1]", "page-overrides=1"}) {
        EXPECT_THROW(ticketOf(ticket).normalizePageOverrides(), AttributeTypeMismatchException)
            << ticket;
    }
}

TEST(FeatureSettingsTest, ImageShiftsGoToTheSidesThatArePrinted) {
    const Rows<const char*, bool, const char*> rows{
        {"copies=1 x-side1-image-shift=3", false, "copies=1 x-side1-image-shift=3"},
        {"sides=two-sided-long-edge x-image-shift=7", true,
         "sides=two-sided-long-edge x-side1-image-shift=7 x-side2-image-shift=7"},
        {"x-image-shift=7 y-image-shift=-8", true,
         "x-side1-image-shift=7 x-side2-image-shift=7 y-side1-image-shift=-8 "
         "y-side2-image-shift=-8"},
        {"sides=one-sided y-image-shift=8 y-side2-image-shift=1", true,
         "sides=one-sided y-side2-image-shift=1 y-side1-image-shift=8"},
        // An override prints on the sides of its own, or else of the ticket.
        {"sides=one-sided page-overrides[value{x-image-shift=1} "
         "value{sides=two-sided-short-edge x-image-shift=2}]",
         true,
         "sides=one-sided page-overrides[value{x-side1-image-shift=1} "
         "value{sides=two-sided-short-edge x-side1-image-shift=2 x-side2-image-shift=2}]"},
        {"page-overrides[value{x-image-shift=1} value{sides=one-sided y-image-shift=2}]", true,
         "page-overrides[value{x-side1-image-shift=1 x-side2-image-shift=1} "
         "value{sides=one-sided y-side1-image-shift=2}]"},
        // Covers are not page overrides.
        {"cover-front{x-image-shift=1}", false, "cover-front{x-image-shift=1}"},
    };
    for (const auto& [before, changed, after] : rows) {
        FeatureSettings ticket = ticketOf(before);
        EXPECT_EQ(ticket.normalizeImageShift(), changed) << before;
        EXPECT_EQ(textOf(ticket), after);
    }
    for (const char* senseless : {"sides=folded", "x-image-shift=x", "page-overrides[value=1]"}) {
        FeatureSettings ticket = ticketOf(senseless);
        EXPECT_TRUE(ticket.normalize());
        EXPECT_EQ(textOf(ticket), senseless);
    }
}

TEST(SettingsTest, OwnersAreCopiedAndViewsShared) {
    AttrNodeList list = listOf("copies=1");
    Settings view(&list);
    const Settings sharing = view;
    Settings owner(list);
    const auto copy = owner.clone();
    view.setLong(copies, 2);
    owner.setLong(copies, 3);
    EXPECT_EQ(textOfList(list), "copies=2");
    EXPECT_EQ(textOf(sharing), "copies=2");
    EXPECT_EQ(textOf(*copy), "copies=1");

    const Settings moved = std::move(owner);
    owner = view;                // a view now
    owner.setAttrNodeList(list); // the list in use
    owner.setLong(copies, 5);
    EXPECT_EQ(textOfList(list), "copies=5");
    EXPECT_EQ(textOf(moved), "copies=3");
    owner.setAttrNodeList(listOf("copies=6"));
    EXPECT_EQ(textOf(owner), "copies=6");
    EXPECT_EQ(textOfList(list), "copies=5");

    // A list inside the one that is replaced.
    Settings outer(listOf("cover-front{copies=7}"));
    AttrNodeList* inner = nullptr;
    outer.getAttrNodeList()->OrdoAttrToList(&inner, AttrID(u"cover-front"));
    outer.setAttrNodeList(*inner);
    EXPECT_EQ(textOf(outer), "copies=7");
}

} // namespace
} // namespace zent::test
