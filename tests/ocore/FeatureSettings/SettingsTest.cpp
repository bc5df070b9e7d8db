#include "ocore/FeatureSettings/Settings.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const _FI copies(feature::copies);
const _FI sides(feature::sides);
const _FI pageRanges(feature::pageRanges);
const _FI resolution(feature::printerResolution);
const _FI finishings(feature::finishings);
const _FI xDimension(feature::xDimension);
const _FI mediaColor(feature::mediaColor);

Settings settings(const char* text) { return Settings(listOf(text)); }
std::string textOf(const Settings& settings) { return textOfList(*settings.getAttrNodeList()); }

using Change = void (*)(Settings&);

TEST(SettingsTest, ChangesShowInTheList) {
    const char* const two = "finishings[value=enum:3 value=enum:7]";
    const Rows<const char*, Change, const char*> rows{
        {"", [](Settings& s) { s.setLong(sides, 2); }, "sides=keyword:2"},
        {"", [](Settings& s) { s.setString(copies, u"x"); }, "copies=0"},
        {"", [](Settings& s) { s.setBool(copies, true); }, "copies=boolean:true"},
        {"", [](Settings& s) { s.setValueOfFeature(FeatureValue(value::finisherProgram1000)); },
         "finishings[value=enum:1000]"},
        // Parents are made at need, with their syntaxes.
        {"media-col{media-color=red}", [](Settings& s) { s.setLong(xDimension, 3); },
         "media-col{media-color=red media-size{x-dimension=3}}"},
        // An instance that isn't there appends.
        {two,
         [](Settings& s) {
             s.setFeatureValue(finishings, FeatureValue(value::finishingBookletMaker), 5);
         },
         "finishings[value=enum:3 value=enum:7 value=enum:13]"},
        {"page-ranges[value(upper-bound=9) value(lower-bound=1 upper-bound=5)]",
         [](Settings& s) { s.setRange(pageRanges, 2, 3, 0); },
         "page-ranges[value(upper-bound=3 lower-bound=2) value(lower-bound=1 upper-bound=5)]"},
        {"printer-resolution<units=4>",
         [](Settings& s) { s.setResolution(resolution, Resolution()); }, ""},
        // Unspecifying clears what has become empty on the way, and makes nothing.
        {"media-col{media-size{x-dimension=3 y-dimension=4}}",
         [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue()); },
         "media-col{media-size{y-dimension=4}}"},
        {"copies=1", [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue(), 3); },
         "copies=1"},
        // A whole node goes to the first place, whatever the instance.
        {two,
         [](Settings& s) { s.setNode(finishings, AttrNode(AttrID(u"x"), IppName(u"y"), true), 1); },
         "finishings[value=name:y value=enum:7]"},
        {"media-col{media-color=red}",
         [](Settings& s) { s.setNode(mediaColor, s.getAttrNodeList()->getNodeAt(0)); },
         "media-col{media-color{media-color=red}}"},
    };
    for (const auto& [before, change, after] : rows) {
        Settings changed = settings(before);
        change(changed);
        EXPECT_EQ(textOf(changed), after);
    }
}

TEST(SettingsTest, RefusedChangesLeaveTheListAlone) {
    const Rows<const char*, Change> rows{
        {"media-col=1", [](Settings& s) { s.setLong(xDimension, 1); }},
        {"media-col=1", [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue()); }},
        {"page-ranges[value=3]", [](Settings& s) { s.setRange(pageRanges, 1, 2); }},
        {"copies=1", [](Settings& s) { s.setResolution(copies, Resolution(1, 2, 3)); }},
    };
    for (const auto& [before, change] : rows) {
        Settings changed = settings(before);
        EXPECT_THROW(change(changed), AttributeTypeMismatchException);
        EXPECT_EQ(textOf(changed), before);
    }
    Settings empty;
    EXPECT_THROW(empty.setValueOfFeature(FeatureValue()), UnknownFeatureRequestException);
}

TEST(SettingsTest, GetsFindTheInstance) {
    const Settings ticket =
        settings("copies=5 finishings[value=enum:3 value=enum:7] toner-saver=boolean:1 "
                 "page-ranges[value(lower-bound=1)] media-col{media-color=name:mauve}");
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    bool truth = false;
    EXPECT_TRUE(ticket.getBool(_FI(feature::tonerSaver), &truth) && truth);
    EXPECT_THROW(ticket.getBool(copies, &truth), AttributeTypeMismatchException);
    EXPECT_FALSE(ticket.getRange(pageRanges, &lower, &upper)); // half of one
    EXPECT_EQ(ticket.getFeatureValue(finishings, 1).getValue(), 132);
    EXPECT_EQ(ticket.getFeatureValue(finishings, 2), FeatureValue());
    EXPECT_EQ(ticket.getFeatureValue(xDimension), FeatureValue());
    const FeatureValue mauve = ticket.getFeatureValue(mediaColor);
    EXPECT_TRUE(mauve.isRunTimeValue());
    EXPECT_EQ(ticket.getFeatureValue(mediaColor), mauve);
    EXPECT_THROW(ticket.getFeatureValue(copies), UnknownFeatureRequestException);
}

TEST(SettingsTest, ResolutionsAreReadWholeOrUnspecified) {
    Resolution found(1, 2, 3);
    EXPECT_THROW(settings("copies=1").getResolution(copies, &found),
                 AttributeTypeMismatchException);
    EXPECT_EQ(found, Resolution(1, 2, 3));
    EXPECT_FALSE(settings("printer-resolution<units=4>").getResolution(resolution, &found));
    EXPECT_TRUE(found.isUnspecified());
    EXPECT_TRUE(settings("printer-resolution<cross-feed=6 feed-direction=5 units=4>")
                    .getResolution(resolution, &found));
    EXPECT_EQ(found, Resolution(6, 5, 4));
    EXPECT_FALSE(Settings().getResolution(resolution, &found));
    EXPECT_TRUE(found.isUnspecified());
}

TEST(SettingsTest, Counts) {
    // How many instances of any name the container has, and how many values.
    const Rows<const char*, _FI, bool, std::uint32_t, std::uint32_t> rows{
        {"sides=x job-name=y", copies, false, 2, 0},
        {"finishings[value=3 value=4 other=5]", finishings, true, 3, 3},
        {"finishings[other=5]", finishings, false, 1, 0},
        {"media-col{media-color=red media-key=k}", mediaColor, true, 2, 1},
    };
    for (const auto& [list, feature, specified, instances, values] : rows) {
        const Settings ticket = settings(list);
        EXPECT_EQ(ticket.isSpecified(feature), specified) << list;
        EXPECT_EQ(ticket.getInstanceCount(feature), instances) << list;
        EXPECT_EQ(ticket.getNumberOfValues(feature), values) << list;
    }
}

TEST(SettingsTest, FeaturesAreCopiedAndCompared) {
    const char* const red = "media-col{media-color=red}";
    const char* const name = "media-col{media-color=name:red}";
    const Rows<const char*, const char*, bool, bool, const char*> rows{
        {"", red, false, false, red},
        {red, "copies=1", false, false, "media-col{}"},
        {red, "copies=1", true, false, ""},
        {"media-col{media-key=k}", "", true, true, "media-col{media-key=k}"},
        {red, red, true, true, red},
        {red, name, true, false, name},
    };
    for (const auto& [before, from, removeParents, same, after] : rows) {
        Settings target = settings(before);
        const Settings source = settings(from);
        EXPECT_EQ(target.isSameFeature(mediaColor, source), same) << before;
        target.copyFeature(mediaColor, source, removeParents);
        EXPECT_EQ(textOf(target), after) << before;
        EXPECT_TRUE(target.isSameFeature(mediaColor, source)) << before;
    }
    const Settings set = settings("finishings[value=enum:3 value=enum:7]");
    EXPECT_EQ(set.getNode(finishings, 1)->getAttrValue().getIppValue(), u"3"); // always the first
    EXPECT_FALSE(set.isSameFeature(finishings, settings("finishings[value=enum:3]"), 1));
    EXPECT_EQ(set.getNode(copies), nullptr);
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
    Settings outer = settings("cover-front{copies=7}");
    AttrNodeList* inner = nullptr;
    outer.getAttrNodeList()->OrdoAttrToList(&inner, AttrID(u"cover-front"));
    outer.setAttrNodeList(*inner);
    EXPECT_EQ(textOf(outer), "copies=7");
}

} // namespace
} // namespace zent::test
