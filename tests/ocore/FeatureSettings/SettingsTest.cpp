#include <functional>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/FeatureSettings/Settings.h"
#include "support/ListText.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

const _FI copies(2);
const _FI sides(4);
const _FI pageRanges(6);
const _FI jobName(21);
const _FI resolution(37);
const _FI finishings(86);
const _FI xDimension(99);
const _FI yDimension(100);
const _FI mediaColor(101);
const _FI mediaSize(113);

Settings settings(const char* text) { return Settings(listOf(text)); }
std::string textOf(const Settings& settings) { return textOfList(*settings.getAttrNodeList()); }

TEST(SettingsTest, ChangesShowInTheList) {
    struct Row {
        const char* before;
        std::function<void(Settings&)> change;
        const char* after;
    };
    const Row rows[] = {
        {"", [](Settings& s) { s.setLong(copies, -5); }, "copies=-5"},
        {"copies=1", [](Settings& s) { s.setLong(copies, 2); }, "copies=2"},
        {"", [](Settings& s) { s.setLong(sides, 2); }, "sides=keyword:2"},
        {"", [](Settings& s) { s.setString(jobName, u"x"); }, "job-name=name:x"},
        {"", [](Settings& s) { s.setString(copies, u"x"); }, "copies=0"},
        {"", [](Settings& s) { s.setBool(copies, true); }, "copies=boolean:true"},
        {"", [](Settings& s) { s.setFeatureValue(sides, FeatureValue(4)); }, "sides=one-sided"},
        {"", [](Settings& s) { s.setValueOfFeature(FeatureValue(147)); },
         "finishings[value=enum:1000]"},
        // Parents are made at need, with their syntaxes.
        {"media-col{media-color=red}", [](Settings& s) { s.setLong(xDimension, 3); },
         "media-col{media-color=red media-size{x-dimension=3}}"},
        {"", [](Settings& s) { s.setString(_FI(8), u"a/b"); },
         "job-save-disposition{save-info[value{save-document-format=mimeMediaType:a/b}]}"},
        // An instance that isn't there appends.
        {"finishings[value=enum:3 value=enum:7]",
         [](Settings& s) { s.setFeatureValue(finishings, FeatureValue(133), 5); },
         "finishings[value=enum:3 value=enum:7 value=enum:13]"},
        {"finishings[value=enum:3 value=enum:7]",
         [](Settings& s) { s.setFeatureValue(finishings, FeatureValue(133), 0); },
         "finishings[value=enum:13 value=enum:7]"},
        {"", [](Settings& s) { s.setRange(pageRanges, 1, 5); },
         "page-ranges[value(lower-bound=1 upper-bound=5)]"},
        {"page-ranges[value(upper-bound=9) value(lower-bound=1 upper-bound=5)]",
         [](Settings& s) { s.setRange(pageRanges, 2, 3, 0); },
         "page-ranges[value(upper-bound=3 lower-bound=2) value(lower-bound=1 upper-bound=5)]"},
        {"",
         [](Settings& s) {
             s.setResolution(resolution, {600, 300, 3});
         },
         "printer-resolution<cross-feed=600 feed-direction=300 units=3>"},
        {"printer-resolution<units=4>",
         [](Settings& s) { s.setResolution(resolution, Resolution()); }, ""},
        // Unspecifying clears what has become empty on the way, and makes nothing.
        {"media-col{media-size{x-dimension=3}}",
         [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue()); }, ""},
        {"media-col{media-size{x-dimension=3 y-dimension=4}}",
         [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue()); },
         "media-col{media-size{y-dimension=4}}"},
        {"finishings[value=enum:3 value=enum:7]",
         [](Settings& s) { s.setFeatureValue(finishings, FeatureValue(), 1); },
         "finishings[value=enum:3]"},
        {"finishings[value=enum:3]",
         [](Settings& s) { s.setFeatureValue(finishings, FeatureValue()); }, ""},
        {"copies=1", [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue(), 3); },
         "copies=1"},
        // A whole node goes to the first place, whatever the instance.
        {"finishings[value=enum:3 value=enum:7]",
         [](Settings& s) {
             s.setNode(finishings, {AttrID(u"x"), IppName(u"y"), true}, 1);
         },
         "finishings[value=name:y value=enum:7]"},
        {"media-col{media-color=red}",
         [](Settings& s) {
             s.setNode(mediaColor, *s.getAttrNodeList()->findNode(AttrID(u"media-col")));
         },
         "media-col{media-color{media-color=red}}"},
    };
    for (const Row& row : rows) {
        Settings changed = settings(row.before);
        row.change(changed);
        EXPECT_EQ(textOf(changed), row.after) << "row " << &row - rows;
    }
}

TEST(SettingsTest, RefusedChangesLeaveTheListAlone) {
    struct Row {
        const char* before;
        std::function<void(Settings&)> change;
        bool isMismatch; // else the syntax is a list's
    };
    const Row rows[] = {
        {"", [](Settings& s) { s.setLong(pageRanges, 1); }, false},
        {"", [](Settings& s) { s.setString(mediaSize, u"A4"); }, false},
        {"media-col=1", [](Settings& s) { s.setLong(xDimension, 1); }, true},
        {"media-col=1", [](Settings& s) { s.setFeatureValue(xDimension, FeatureValue()); }, true},
        {"page-ranges[value=3]", [](Settings& s) { s.setRange(pageRanges, 1, 2); }, true},
        {"copies=1",
         [](Settings& s) {
             s.setResolution(copies, {1, 2, 3});
         },
         true},
    };
    for (const Row& row : rows) {
        Settings changed = settings(row.before);
        if (row.isMismatch) {
            EXPECT_THROW(row.change(changed), AttributeTypeMismatchException) << &row - rows;
        } else {
            EXPECT_THROW(row.change(changed), UnknownCaseException) << &row - rows;
        }
        EXPECT_EQ(textOf(changed), row.before);
    }
    Settings empty;
    EXPECT_THROW(empty.setValueOfFeature(FeatureValue()), UnknownFeatureRequestException);
}

TEST(SettingsTest, GetsAreTypedAndFindTheInstance) {
    const Settings ticket =
        settings("copies=5 sides=one-sided job-name=name:x finishings[value=enum:3 value=enum:7] "
                 "page-ranges[value(lower-bound=1 upper-bound=5) value(lower-bound=7)] "
                 "toner-saver=boolean:1 "
                 "media-col{media-color=name:mauve}");
    std::int32_t number = -1;
    std::int32_t upper = -1;
    CXString text(u"old");
    bool truth = false;
    EXPECT_TRUE(ticket.getLong(copies, &number));
    EXPECT_EQ(number, 5);
    EXPECT_TRUE(ticket.getLong(finishings, &number, 1));
    EXPECT_EQ(number, 7);
    EXPECT_FALSE(ticket.getLong(finishings, &number, 2));
    EXPECT_FALSE(ticket.getLong(xDimension, &number));
    EXPECT_EQ(number, 7);
    EXPECT_FALSE(ticket.getString(_FI(22), &text));
    EXPECT_EQ(text, u"old");
    EXPECT_TRUE(ticket.getString(jobName, &text));
    EXPECT_EQ(text, u"x");
    EXPECT_TRUE(ticket.getBool(_FI(92), &truth));
    EXPECT_TRUE(truth);
    EXPECT_TRUE(ticket.getRange(pageRanges, &number, &upper));
    EXPECT_EQ(upper, 5);
    EXPECT_FALSE(ticket.getRange(pageRanges, &number, &upper, 1)); // half of one
    EXPECT_FALSE(ticket.getRange(pageRanges, &number, &upper, 2));
    EXPECT_THROW(ticket.getLong(sides, &number), AttributeTypeMismatchException);
    EXPECT_THROW(ticket.getString(copies, &text), AttributeTypeMismatchException);
    EXPECT_THROW(ticket.getBool(copies, &truth), AttributeTypeMismatchException);
    EXPECT_THROW(ticket.getRange(copies, &number, &upper), AttributeTypeMismatchException);

    EXPECT_EQ(ticket.getFeatureValue(sides).getValue(), 4);
    EXPECT_EQ(ticket.getFeatureValue(finishings, 1).getValue(), 132);
    EXPECT_EQ(ticket.getFeatureValue(finishings, 2), FeatureValue());
    EXPECT_EQ(ticket.getFeatureValue(xDimension), FeatureValue());
    const FeatureValue mauve = ticket.getFeatureValue(mediaColor);
    EXPECT_GE(mauve.getValue(), 553);
    EXPECT_EQ(ticket.getFeatureValue(mediaColor), mauve);
    EXPECT_THROW(ticket.getFeatureValue(copies), UnknownFeatureRequestException);
}

TEST(SettingsTest, ResolutionsAreReadWholeOrUnspecified) {
    Resolution found(1, 2, 3);
    EXPECT_THROW(settings("copies=1").getResolution(copies, &found),
                 AttributeTypeMismatchException);
    EXPECT_EQ(found, Resolution(1, 2, 3));
    EXPECT_TRUE(settings("printer-resolution<cross-feed=6 feed-direction=5 units=4>")
                    .getResolution(resolution, &found));
    EXPECT_EQ(found, Resolution(6, 5, 4));
    EXPECT_FALSE(settings("printer-resolution<units=4>").getResolution(resolution, &found));
    EXPECT_EQ(found, Resolution());
    found.setUnits(0);
    EXPECT_FALSE(found.isUnspecified());
    EXPECT_FALSE(Settings().getResolution(resolution, &found));
    EXPECT_TRUE(found.isUnspecified());
}

TEST(SettingsTest, Counts) {
    struct Row {
        const char* ticket;
        const _FI& feature;
        bool specified;
        std::uint32_t instances; // of any name in the container
        std::uint32_t values;
    };
    const Row rows[] = {
        {"", copies, false, 0, 0},
        {"sides=x job-name=y", copies, false, 2, 0},
        {"copies=1 sides=x job-name=y", copies, true, 3, 1},
        {"copies=1 copies=2 sides=x", copies, true, 3, 2},
        {"finishings[value=3 value=4 other=5]", finishings, true, 3, 3},
        {"finishings[other=5]", finishings, false, 1, 0},
        {"finishings[]", finishings, false, 0, 0},
        {"media-col{media-color=red media-key=k}", mediaColor, true, 2, 1},
    };
    for (const Row& row : rows) {
        const Settings ticket = settings(row.ticket);
        EXPECT_EQ(ticket.isSpecified(row.feature), row.specified) << row.ticket;
        EXPECT_EQ(ticket.getInstanceCount(row.feature), row.instances) << row.ticket;
        EXPECT_EQ(ticket.getNumberOfValues(row.feature), row.values) << row.ticket;
    }
    EXPECT_TRUE(Settings().isEmpty());
    EXPECT_FALSE(settings("finishings[]").isEmpty());
}

TEST(SettingsTest, FeaturesAreCopiedAndCompared) {
    struct Row {
        const char* target;
        const char* source;
        bool removeParents;
        bool same; // before
        const char* after;
    };
    const Row rows[] = {
        {"", "media-col{media-color=red}", false, false, "media-col{media-color=red}"},
        {"media-col{media-color=red}", "copies=1", false, false, "media-col{}"},
        {"media-col{media-color=red}", "copies=1", true, false, ""},
        {"media-col{media-key=k}", "", true, true, "media-col{media-key=k}"},
        {"media-col{media-color=red}", "media-col{media-color=red}", true, true,
         "media-col{media-color=red}"},
        {"media-col{media-color=red}", "media-col{media-color=name:red}", true, false,
         "media-col{media-color=name:red}"},
    };
    for (const Row& row : rows) {
        Settings target = settings(row.target);
        const Settings source = settings(row.source);
        EXPECT_EQ(target.isSameFeature(mediaColor, source), row.same) << &row - rows;
        target.copyFeature(mediaColor, source, row.removeParents);
        EXPECT_EQ(textOf(target), row.after) << &row - rows;
        EXPECT_TRUE(target.isSameFeature(mediaColor, source)) << &row - rows;
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
    owner = view; // a view now
    EXPECT_EQ(textOf(moved), "copies=3");
    owner.setLong(copies, 4);
    EXPECT_EQ(textOfList(list), "copies=4");
    const Settings& itself = owner;
    owner = itself;
    owner.setAttrNodeList(list); // the list in use
    owner.setLong(copies, 5);
    EXPECT_EQ(textOfList(list), "copies=5");
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
