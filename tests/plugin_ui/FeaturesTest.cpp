#include "ocore/FeatureSettings/FeatureEnum.h"
#include "plugin_ui/Controls/OwndrwPushButtonUIControl.h"
#include "plugin_ui/Controls/RadioButtonUIControl.h"
#include "plugin_ui/Controls/SliderUIControl.h"
#include "plugin_ui/Features/FeatureRow.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "plugin_ui/TestDialog.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using Window = FakeWindowSystem::Window;

enum Id : std::uint16_t {
    ok = 1,
    cancel,
    combo,
    box,
    defaultBox,
    number,
    spin,
    range,
    picture,
    radio,
    otherRadio,
    track
};
constexpr std::uint16_t customEdit = IDC_CUSTOM_VALUE;

constexpr std::uint32_t autoCheckBox = 3;
constexpr std::uint32_t autoRadioButton = 9;

/// One whose names of media take no spaces.
constexpr std::uint32_t modelWithoutSpaces = 17;

constexpr KeyWordListRow plexRow{
    .feature = feature::antiAliasing, .comboId = combo, .role = FeatureRole::plex};
constexpr KeyWordListRow ownValuesRow{feature::mediaColor, combo, 0, picture, IDB_OVERLAY};

TemplateBuilder items() {
    TemplateBuilder builder(u"Features");
    for (const std::uint16_t id : {box, defaultBox}) {
        builder.add(id, TemplateBuilder::button, autoCheckBox, {});
    }
    for (const std::uint16_t id : {number, range}) {
        builder.add(id, TemplateBuilder::edit, 0, {});
    }
    for (const std::uint16_t id : {radio, otherRadio}) {
        builder.add(id, TemplateBuilder::button, autoRadioButton, {});
    }
    return builder.add(track, u"msctls_trackbar32", 0, {})
        .add(combo, TemplateBuilder::comboBox, 0, {})
        .add(spin, u"msctls_updown32", 0, {})
        .add(picture, TemplateBuilder::label, 0, {})
        .add(ok, TemplateBuilder::button, 0, {}, u"OK")
        .add(cancel, TemplateBuilder::button, 0, {}, u"Cancel");
}

class FeaturesTest : public DialogFixture {
protected:
    FeaturesTest()
        : DialogFixture("job-creation-attributes-supported[value=anti-aliasing value=media-col] "
                        "media-col-supported[value=media-color value=media-order-count] "
                        "anti-aliasing-supported[value=standard value=none] "
                        "media-color-supported[value=white value=red] "
                        "media-order-count-supported[value(lower-bound=1 upper-bound=250)] "
                        "user-defined-values-supported[value=media-color]",
                        modelWithoutSpaces),
          m_dialog(m_configuration, items()) {}

    /// Runs the dialog on a ticket, ends it with OK, and gives what has become of the ticket.
    std::string run(std::string_view text, const std::function<void(Window)>& acts) {
        return run(m_dialog, text, acts);
    }
    std::string run(UIDialog& dialog, std::string_view text,
                    const std::function<void(Window)>& acts) {
        m_ticket.setAttrNodeList(listOf(text));
        m_windows.onceOpen([this, acts](Window window) {
            acts(window);
            m_windows.click(window, ok);
        });
        EXPECT_TRUE(dialog.runModal(nullptr, m_ticket));
        return ticket();
    }

    /// The texts of the drop-down list, with the chosen one in brackets.
    std::u16string choices(Window window) {
        std::u16string text;
        const auto& item = m_windows.item(window, combo);
        for (std::size_t i = 0; i < item.list.size(); ++i) {
            const std::u16string entry(item.list[i].first);
            text += (i == 0 ? u"" : u"|") +
                    (static_cast<std::int32_t>(i) == item.selected ? u'[' + entry + u']' : entry);
        }
        return text;
    }

    TestDialog m_dialog;
};

/// Depends on the feature of a role.
class Dependent : public TestFeature {
public:
    using TestFeature::TestFeature;
    bool onFeatureAnnounce(const DialogMessage& message, std::intptr_t& /*result*/) override {
        EXPECT_EQ(findAnnounced(message, FeatureRole::none), nullptr);
        findAnnounced(message, FeatureRole::plex)->attach(*this);
        return false;
    }
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override { ++changes; }

    std::size_t changes = 0;
};

TEST_F(FeaturesTest, ADropDownListOffersThePrintersValues) {
    const auto& dependent = m_dialog.makeChild<Dependent>(m_configuration);
    auto& list = m_dialog.makeChild<KeyWordListUIFeature>(m_configuration, plexRow, TJTF_ANY);
    list.setDefaultText(IDS_ACCOUNT_TITLE); // before there is a window
    const std::string none = run("anti-aliasing=none", [&](Window window) {
        EXPECT_EQ(choices(window), u"Account|Standard|[No anti-aliasing]");
        list.setDefaultText(IDS_JOB_NAME_TITLE);
        EXPECT_EQ(choices(window), u"Job name|Standard|[No anti-aliasing]");
        m_windows.choose(window, combo, 1);
        EXPECT_EQ(choices(window), u"Job name|[Standard]|No anti-aliasing");
    });
    EXPECT_EQ(none, "anti-aliasing=standard");
    EXPECT_EQ(run("anti-aliasing=none", [&](Window window) { m_windows.choose(window, combo, 0); }),
              "");
    EXPECT_EQ(m_windows.changesReported(), 2U);
    EXPECT_EQ(dependent.changes, 2U); // once a change, though it was announced at each start
    m_ticket.setAttrNodeList(listOf("anti-aliasing=none"));
    m_dialog.broadcastPrinterDefault(m_ticket);
    EXPECT_EQ(ticket(), "");
}

TEST_F(FeaturesTest, AValueOfTheUsersOwnIsAskedFor) {
    m_dialog.makeChild<KeyWordListUIFeature>(m_configuration, ownValuesRow, TJTF_ANY);
    const char* const pink = "media-col{media-color=name:pink}";
    // A value that the ticket brings along stands in the list, also when another one is chosen.
    // Giving up puts the choice back.
    EXPECT_EQ(run(
                  pink,
                  [&](Window window) {
        m_windows.onceOpen([&](Window asking) {
            EXPECT_EQ(m_windows.item(asking, customEdit).getText(), u"pink");
            m_windows.clear(asking, customEdit);
            EXPECT_FALSE(m_windows.item(asking, ok).isEnabled());
        });
        m_windows.choose(window, combo, 3);
        EXPECT_EQ(choices(window), u"Printer default|White|Red|Custom\u2026|[pink (custom)]");
        EXPECT_EQ(m_windows.item(window, picture).bitmap, std::uint32_t{IDB_OVERLAY});
        EXPECT_FALSE(m_windows.item(window, picture).isGroundCleared);
        m_windows.choose(window, combo, 2);
        EXPECT_EQ(choices(window), u"Printer default|White|[Red]|Custom\u2026|pink (custom)");
                  }),
              "media-col{media-color=red}");
    const auto typeOwn = [&](std::u16string_view text, std::u16string_view offered) {
        return run("", [&](Window window) {
            m_windows.onceOpen([&](Window asking) {
                m_windows.type(asking, customEdit, text);
                m_windows.click(asking, ok);
            });
            m_windows.choose(window, combo, 3);
            EXPECT_EQ(choices(window), offered);
        });
    };
    // A text is taken within the printer's limits: 27 characters, no spaces.
    EXPECT_EQ(typeOwn(u"sky blue 2 " + std::u16string(30, u'x'),
                      u"Printer default|White|Red|Custom\u2026|[skyblue2xxxxxxxxxxxxxxxxxxx "
                      "(custom)]"),
              "media-col{media-color=name:skyblue2xxxxxxxxxxxxxxxxxxx}");
    // One that the ticket brings along may be too long, and isn't taken as it is.
    const std::string longColor = "media-col{media-color=name:" + std::string(40, 'y') + "}";
    const BoxCapture boxes;
    EXPECT_EQ(run(
                  longColor,
                  [&](Window window) {
        m_windows.onceOpen([&](Window asking) {
            EXPECT_EQ(m_windows.item(asking, customEdit).getText().size(), 40U);
            m_windows.click(asking, ok);
            EXPECT_EQ(boxes.shown().size(), 1U);
        });
        m_windows.choose(window, combo, 3);
                  }),
              longColor);
    // One that names a value of the printer is that one.
    EXPECT_EQ(typeOwn(u"red", u"Printer default|White|[Red]|Custom\u2026"),
              "media-col{media-color=red}");
}

TEST_F(FeaturesTest, RowsSayHowValuesOfTheUsersOwnAreOffered) {
    using List = KeyWordListRow;
    for (const auto& [flag, offered, red, teal] :
         Rows<bool List::*, std::u16string_view, std::int32_t, std::int32_t>{
             {&List::sortList, u"Custom\u2026|Printer default|Red|White|[teal (custom)]", 2, 4},
             {&List::showCustomFirst, u"Printer default|[teal (custom)]|Custom\u2026|White|Red", 4,
              1},
             {&List::replaceCustomItem, u"Printer default|White|Red|Custom\u2026|[teal (custom)]",
              2, 4},
             {&List::decorateValues, u"Printer default|White|Red|Custom\u2026|[teal]", 2, 4}}) {
        List list = ownValuesRow;
        list.*flag = !(list.*flag);
        TestDialog dialog(m_configuration, items());
        dialog.makeChild<KeyWordListUIFeature>(m_configuration, list, TJTF_ANY);
        const char* const own = "media-col{media-color=name:teal}";
        const std::string result =
            run(dialog, own, [&, shown = offered, red = red, teal = teal](Window window) {
                EXPECT_EQ(choices(window), shown);
                m_windows.choose(window, combo, red);
                m_windows.choose(window, combo, teal); // or ask for another, in vain
            });
        EXPECT_EQ(result, list.replaceCustomItem ? "media-col{media-color=red}" : own);
    }
}

TEST_F(FeaturesTest, CheckBoxesStandForTwoValuesAndTheDefault) {
    const FeatureRow features[] = {CheckBoxRow{feature::antiAliasing, box, defaultBox,
                                               value::antiAliasingStandard,
                                               value::antiAliasingNone}};
    addFeatures(m_dialog, features);
    EXPECT_EQ(run(
                  "",
                  [&](Window window) {
        EXPECT_TRUE(m_windows.item(window, defaultBox).isChecked());
        EXPECT_FALSE(m_windows.item(window, box).isEnabled());
        m_windows.click(window, box); // in vain
        m_windows.click(window, defaultBox);
        EXPECT_TRUE(m_windows.item(window, box).isEnabled());
                  }),
              "anti-aliasing=none");
    EXPECT_EQ(run(
                  "anti-aliasing=none",
                  [&](Window window) {
        EXPECT_FALSE(m_windows.item(window, defaultBox).isChecked());
        EXPECT_FALSE(m_windows.item(window, box).isChecked());
        m_windows.click(window, box);
                  }),
              "anti-aliasing=standard");
    EXPECT_EQ(run(
                  "anti-aliasing=standard",
                  [&](Window window) {
        EXPECT_TRUE(m_windows.item(window, box).isChecked());
        m_windows.click(window, defaultBox);
                  }),
              "");
}

TEST_F(FeaturesTest, ANumberMayBeLeftToThePrinter) {
    for (const bool inverts : {false, true}) {
        SCOPED_TRACE(inverts);
        TestDialog dialog(m_configuration, items());
        const NumberRow row{feature::mediaOrderCount, spin, range, number, box, 5, inverts};
        const auto& counted = dialog.makeChild<NumberCheckBoxUIFeature>(
            m_configuration, row, ConfigurableUIComponent::jobLevel);
        m_ticket.setAttrNodeList(AttrNodeList());
        m_windows.onceOpen([&](Window window) {
            EXPECT_EQ(m_windows.item(window, range).getText(), u"(1 - 250)");
            EXPECT_EQ(m_windows.item(window, number).getText(), u"5");
            EXPECT_EQ(m_windows.item(window, box).isChecked(), inverts);
            EXPECT_FALSE(m_windows.item(window, number).isEnabled());
            m_windows.click(window, box);
            EXPECT_EQ(m_windows.spin(window, spin, -1), 1); // the spin's own position is of no use
            EXPECT_EQ(m_windows.item(window, number).getText(), u"6");
            m_windows.type(window, number, u"00"); // three digits at most
            m_windows.click(window, ok);
        });
        EXPECT_TRUE(dialog.runModal(nullptr, m_ticket));
        EXPECT_EQ(ticket(), "media-col{media-order-count=600}");
        EXPECT_EQ(counted.getLastValue(), 600);
        m_windows.onceOpen([&](Window window) {
            EXPECT_TRUE(m_windows.item(window, number).isEnabled());
            m_windows.click(window, box);
            m_windows.click(window, ok);
        });
        EXPECT_TRUE(dialog.runModal(nullptr, m_ticket));
        EXPECT_EQ(ticket(), "");
    }
}

/// A dialog whose controls belong to no feature.
class ControlsTest : public FeaturesTest, public Observer {
protected:
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override { ++m_notified; }

    int m_notified = 0;
};

TEST_F(ControlsTest, NumberBoxes) {
    auto& control = m_dialog.makeChild<NumberBoxUIControl>(number, spin);
    control.attach(*this);
    control.setBounds(1, 99);
    control.setBounds(-1.0, 2.0);
    control.setValue(0);
    run("", [&](Window window) {
        control.displayControl();
        m_notified = 0;
        m_windows.clear(window, number); // an empty box is a change from 0
        EXPECT_TRUE(control.isEmpty());
        EXPECT_EQ(control.getValue(), 0);
        EXPECT_EQ(m_notified, 1);
        m_windows.type(window, number, u"-250");
        m_windows.leave(window, number);
        EXPECT_EQ(control.getInteger(), -250); // for the validation to find
        control.setClampOnLeave(true);
        m_windows.leave(window, number);
        EXPECT_EQ(m_windows.item(window, number).getText(), u"1");
        m_windows.spin(window, spin, -200);
        EXPECT_EQ(control.getInteger(), 99);

        control.setNumberType(NumberType::decimal);
        control.setDecimals(3);
        control.setValue(1.5);
        EXPECT_EQ(m_windows.item(window, number).getText(), u"1.5");
        control.setDecimals(2);
        m_windows.spin(window, spin, 1);
        EXPECT_EQ(m_windows.item(window, number).getText(), u"1.49");
        m_windows.spin(window, spin, -100); // beyond the bound: stays
        EXPECT_EQ(control.getValue(), 1.49);

        // What is shown is less than what is held, and doesn't come back.
        m_notified = 0;
        control.setValue(1.254);
        EXPECT_EQ(m_windows.item(window, number).getText(), u"1.25");
        EXPECT_EQ(control.getValue(), 1.254);
        EXPECT_EQ(m_notified, 0);

        control.setNumberType(NumberType::unsignedInteger);
        control.setValue(4294967295.0);
        EXPECT_EQ(m_windows.item(window, number).getText(), u"4294967295");
        EXPECT_EQ(control.getValue(), 4294967295.0);
        control.setNumberType(NumberType(4));
        EXPECT_THROW(control.displayControl(), UnknownCaseException);
        control.setNumberType(NumberType::signedInteger);
    });
}

/// Its item tells of what the program does, as those of some toolkits do.
class Echoing : public UIControl {
public:
    explicit Echoing(std::uint16_t item) : UIControl(item) {}
    bool processControlMessage(const DialogMessage& /*message*/,
                               std::intptr_t& /*result*/) override {
        notifyObservers();
        return true;
    }

protected:
    void showValue() override { getFirstItem().setText(getFirstItem().getText() + u"1"); }
};

TEST_F(ControlsTest, WhatTheyShowIsNoActOfTheUser) {
    auto& control = m_dialog.makeChild<Echoing>(number);
    control.attach(*this);
    run("", [&](Window window) {
        control.displayControl();
        EXPECT_EQ(m_windows.item(window, number).getText(), u"1");
        EXPECT_EQ(m_notified, 0);
        m_windows.type(window, number, u"2");
        EXPECT_EQ(m_notified, 1);
    });
}

TEST_F(ControlsTest, RadioButtonsAndSliders) {
    auto& buttons = m_dialog.makeChild<RadioButtonUIControl>(radio);
    buttons.addButton(otherRadio);
    buttons.setCheckedId(radio);
    buttons.attach(*this);
    auto& slider = m_dialog.makeChild<SliderUIControl>(track);
    slider.setRange(-100, 100);
    slider.attach(*this);
    buttons.setToolTip(u"One or the other");
    run("", [&](Window window) {
        EXPECT_EQ(m_windows.item(window, radio).toolTip, u"One or the other");
        EXPECT_EQ(m_windows.item(window, track).lower, -100);
        buttons.displayControl();
        m_windows.click(window, radio); // no change
        EXPECT_EQ(m_notified, 0);
        m_windows.click(window, otherRadio);
        EXPECT_EQ(buttons.getCheckedId(), otherRadio);
        EXPECT_FALSE(m_windows.item(window, radio).isChecked());
        m_windows.slide(window, track, -7);
        EXPECT_EQ(slider.getValue(), -7);
        EXPECT_EQ(m_notified, 2);
    });
}

TEST_F(ControlsTest, DrawnButtonsShowWhatTheyAre) {
    m_dialog.makeChild<OwndrwPushButtonUIControl>(
        box, OwndrwPushButtonUIControl::Bitmaps{1220, 1221, 1222});
    std::uint32_t drawn = 0;
    const std::tuple<std::uint32_t, std::uint32_t, std::uint32_t> rows[] = {
        {1, 0, 1220}, {2, 1, 1221}, {1, 4, 1222}, {1, 5, 1221}, {4, 0, 1221 /* as before */}};
    run("", [&](Window window) {
        for (const auto& [action, state, bitmap] : rows) {
            platform::DrawRequest request{.item = box,
                                          .action = action,
                                          .state = state,
                                          .drawBitmap = [&](auto chosen) { drawn = chosen; }};
            m_windows.getDialog(window).send(platform::event::drawItem, box,
                                             reinterpret_cast<std::intptr_t>(&request));
            EXPECT_EQ(drawn, bitmap);
        }
    });
}

} // namespace
} // namespace zent::test
