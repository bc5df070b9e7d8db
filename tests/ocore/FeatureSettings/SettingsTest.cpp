#include "ocore/FeatureSettings/Settings.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const _FI copies(feature::copies);
const _FI pageRanges(feature::pageRanges);
const _FI resolution(feature::printerResolution);
const _FI finishings(feature::finishings);
const _FI xDimension(feature::xDimension);
const _FI mediaColor(feature::mediaColor);

Settings settings(const char* text) { return Settings(listOf(text)); }
std::string textOf(const Settings& settings) { return textOfList(*settings.getAttrNodeList()); }

using Change = void (*)(Settings&);

TEST(SettingsTest, ChangesShowInTheList) {
    const Rows<const char*, Change, const char*> rows{
        {"", [](Settings& s) { s.setString(copies, u"x"); }, "copies=0"},
        {"", [](Settings& s) { s.setValueOfFeature(FeatureValue(value::finisherProgram1000)); },
         "finishings[value=enum:1000]"},
        // Parents are made at need, with their syntaxes.
        {"media-col{media-color=red}", [](Settings& s) { s.setLong(xDimension, 3); },
         "media-col{media-color=red media-size{x-dimension=3}}"},
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
        {"finishings[value=enum:3 value=enum:7]",
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
    Settings refusing = settings("media-col=1");
    EXPECT_THROW(refusing.setLong(xDimension, 1), AttributeTypeMismatchException);
    EXPECT_EQ(textOf(refusing), "media-col=1");
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
