#include "ocore/FeatureSettings/FeatureEnum.h"
#include "platform/DialogTemplate.h"
#include "plugin_ui/Controls/NumberBoxUIControl.h"
#include "plugin_ui/Controls/PushButtonUIControl.h"
#include "plugin_ui/DialogFitting.h"
#include "plugin_ui/Features/DialogLaunchButtonUIFeature.h"
#include "plugin_ui/Features/DialogTable.h"
#include "plugin_ui/Features/TextEntryUIFeature.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "plugin_ui/TestDialog.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using DialogItem = platform::DialogTemplate::Item;
using Window = FakeWindowSystem::Window;

enum Id : std::uint16_t { ok = 1, cancel, edit, label, button };

TemplateBuilder items() {
    return TemplateBuilder(u"Test")
        .add(label, TemplateBuilder::label, 0, {7, 7, 50, 8}, u"&Message:")
        .add(edit, TemplateBuilder::edit, TemplateBuilder::visible, {60, 7, 100, 14})
        .add(button, TemplateBuilder::button, 0, {60, 25, 50, 14}, u"More")
        .add(ok, TemplateBuilder::button, 0, {60, 50, 50, 14}, u"OK")
        .add(cancel, TemplateBuilder::button, 0, {120, 50, 50, 14}, u"Cancel");
}

/// Counts what it hears.
class Counter : public Observer {
public:
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override { ++m_count; }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

class DialogTest : public DialogFixture {
protected:
    DialogTest()
        : DialogFixture("job-creation-attributes-supported[value=job-sheet-message] "
                        "job-sheet-message-allowable-char-limit=20"),
          m_dialog(m_configuration, items()) {}

    TextEntryUIFeature& addEntry() { return addEntry(m_dialog); }
    TextEntryUIFeature& addEntry(UIDialog& dialog) {
        return dialog.makeChild<TextEntryUIFeature>(
            m_configuration,
            TextEntryRow{.feature = feature::jobSheetMessage, .labelId = label, .editId = edit});
    }

    TestDialog m_dialog;
};

TEST_F(DialogTest, ItemsWithoutAFeatureStayHidden) {
    addEntry();
    m_windows.onceOpen([&](Window window) {
        EXPECT_EQ(m_windows.shownItems(window),
                  (std::vector<std::uint16_t>{label, edit, ok, cancel}));
        m_windows.click(window, cancel);
    });
    EXPECT_FALSE(m_dialog.runModal(nullptr, m_ticket));
}

/// Fails at a moment of its choice.
class FailingAt : public TestFeature {
public:
    enum class Moment { initialization, update, validation, act };
    FailingAt(UIConfiguration& configuration, Moment moment)
        : TestFeature(configuration), m_moment(moment) {
        makeChild<PushButtonUIControl>(button).attach(*this);
    }
    void initializeFeature() override { failAt(Moment::initialization); }
    void updateFeatureWithNewSettings() override { failAt(Moment::update); }
    bool validate(platform::WindowHandle /*window*/) override {
        failAt(Moment::validation);
        return true;
    }
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override { failAt(Moment::act); }

private:
    void failAt(Moment moment) const {
        if (moment == m_moment) {
            Raise<IndexOutOfBoundsException>{}("nothing there\r\n");
        }
    }

    Moment m_moment;
};

TEST_F(DialogTest, AFailureIsReportedAndTheDialogGoesOn) {
    addEntry();
    m_dialog.makeChild<FailingAt>(m_configuration, FailingAt::Moment::act);
    m_dialog.setTitle(u"Titled");
    const BoxCapture boxes;
    m_windows.onceOpen([&](Window window) {
        EXPECT_EQ(m_windows.getCaption(window), u"Titled");
        m_windows.click(window, button);
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].owner, window);
        m_windows.type(window, edit, u"Hello");
        m_windows.click(window, ok);
    });
    EXPECT_TRUE(m_dialog.runModal(nullptr, m_ticket));
    EXPECT_EQ(ticket(), "job-sheet-message=text:Hello");
    EXPECT_GE(m_windows.changesReported(), 5U);
}

TEST_F(DialogTest, AFailureAtTheStartLeavesTheRestOfTheDialog) {
    for (const auto moment : {FailingAt::Moment::initialization, FailingAt::Moment::update}) {
        TestDialog dialog(m_configuration, items());
        dialog.makeChild<FailingAt>(m_configuration, moment)
            .makeChild<FailingAt>(m_configuration, moment);
        addEntry(dialog);
        m_ticket.setAttrNodeList(listOf("job-sheet-message=text:a"));
        m_configuration.readOnly = moment == FailingAt::Moment::update;
        const BoxCapture boxes;
        m_windows.onceOpen([&](Window window) {
            EXPECT_EQ(m_windows.shownItems(window),
                      (std::vector<std::uint16_t>{label, edit, button, ok, cancel}));
            EXPECT_EQ(m_windows.item(window, edit).getText(), u"a");
            m_windows.type(window, edit, u"b");
            m_windows.click(window, ok);
        });
        EXPECT_TRUE(dialog.runModal(nullptr, m_ticket));
        EXPECT_EQ(boxes.shown().size(), 1U); // of two failures
        EXPECT_EQ(ticket(), m_configuration.readOnly ? "job-sheet-message=text:a"
                                                     : "job-sheet-message=text:ab");
    }
}

TEST_F(DialogTest, AFailureInAValidationIsARefusal) {
    addEntry(); // which accepts, before
    m_dialog.makeChild<FailingAt>(m_configuration, FailingAt::Moment::validation);
    const BoxCapture boxes;
    m_windows.onceOpen([&](Window window) { m_windows.click(window, ok); });
    EXPECT_FALSE(m_dialog.runModal(nullptr, m_ticket));
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(DialogTest, ABoxThatIsMissingOrCantBeFilteredIsAFault) {
    for (const std::uint16_t id : {std::uint16_t{edit}, std::uint16_t{99}}) {
        TestDialog dialog(m_configuration, items());
        dialog.makeChild<NumberBoxUIControl>(id);
        m_windows.setCanFilter(id != edit);
        const BoxCapture boxes;
        m_windows.onceOpen(
            [&](Window window) { EXPECT_TRUE(m_windows.item(window, ok).isShown()); });
        dialog.runModal(nullptr, m_ticket);
        EXPECT_EQ(boxes.shown().size(), 1U);
    }
}

TEST_F(DialogTest, EnterAccepts) {
    TestDialog dialog(m_configuration, items(), {.okId = button});
    m_windows.onceOpen([&](Window window) { EXPECT_EQ(m_windows.defaultButton(window), button); });
    dialog.runModal(nullptr, m_ticket);
}

TEST_F(DialogTest, AModelessDialogCommitsAtOKAndTells) {
    addEntry();
    Counter counter;
    m_dialog.attach(counter);
    m_dialog.runModeless(nullptr, m_ticket);
    Window window = m_dialog.getModelessWindow();
    m_windows.type(window, edit, u"a");
    EXPECT_EQ(ticket(), "");
    m_windows.click(window, ok);
    EXPECT_EQ(ticket(), "job-sheet-message=text:a");
    EXPECT_EQ(counter.count(), 1);
    EXPECT_EQ(m_dialog.getModelessWindow(), nullptr);

    m_dialog.runModeless(nullptr, m_ticket); // a second run begins with what the ticket holds
    window = m_dialog.getModelessWindow();
    m_windows.type(window, edit, u"b");
    EXPECT_EQ(m_windows.item(window, edit).getText(), u"ab");
    m_windows.click(window, cancel);
    EXPECT_EQ(ticket(), "job-sheet-message=text:a");
    EXPECT_EQ(counter.count(), 1);
    EXPECT_FALSE(m_windows.getDialog(window).isVisible());
}

TEST_F(DialogTest, WhatIsLockedStaysDisabledUntilItIsUnlocked) {
    TextEntryUIFeature& entry = addEntry();
    auto inner = std::make_unique<TestDialog>(m_configuration, items());
    addEntry(*inner);
    m_dialog.makeChild<DialogLaunchButtonUIFeature>(m_configuration, std::move(inner), button);
    m_configuration.readOnly = true;
    m_windows.onceOpen([&](Window window) {
        EXPECT_FALSE(m_windows.item(window, edit).isEnabled());
        entry.getTextBox().enable();
        EXPECT_FALSE(m_windows.item(window, edit).isEnabled());
        m_windows.click(window, button); // opens what can be read
        m_windows.getDialog(window).send(UIM_UNLOCK, 0, 0);
        EXPECT_TRUE(m_windows.item(window, edit).isEnabled());
        EXPECT_FALSE(m_configuration.readOnly);
        m_windows.getDialog(window).send(UIM_LOCK, 0, 0);
        EXPECT_TRUE(m_configuration.readOnly);
    });
    bool isInnerLocked = false;
    m_windows.onceOpen(
        [&](Window window) { isInnerLocked = !m_windows.item(window, edit).isEnabled(); });
    EXPECT_FALSE(m_dialog.runModal(nullptr, m_ticket));
    EXPECT_TRUE(isInnerLocked);

    // Another run begins unlocked, however the one before ended.
    m_configuration.readOnly = false;
    for (int run = 0; run < 2; ++run) {
        m_windows.onceOpen([&](Window window) {
            EXPECT_TRUE(m_windows.item(window, edit).isEnabled());
            entry.getTextBox().disable();
            entry.getTextBox().enable();
            EXPECT_TRUE(m_windows.item(window, edit).isEnabled());
            m_windows.getDialog(window).send(UIM_LOCK, 0, 0);
        });
        EXPECT_FALSE(m_dialog.runModal(nullptr, m_ticket));
        EXPECT_FALSE(m_configuration.readOnly);
    }
}

TEST_F(DialogTest, NoTemplateNoDialog) {
    UIDialog empty(m_configuration, DialogFacts{});
    EXPECT_THROW(empty.runModal(nullptr, m_ticket), ResourceAcquisitionException);
    const WindowSystemReplacement none(nullptr);
    EXPECT_THROW(m_dialog.runModal(nullptr, m_ticket), ResourceAcquisitionException);
}

// ---- The table of dialogs -----------------------------------------------------------------------

/// The items that its row names are in a dialog's template.
void expectItems(const DialogFacts& row) {
    SCOPED_TRACE(row.templateId);
    const ResourceData loaded = ResourceLibrary().loadDialog(row.templateId);
    const auto dialog = platform::DialogTemplate::read(loaded.getBytes().bytes());
    ASSERT_TRUE(dialog);
    for (const std::uint16_t id : {row.okId, row.cancelId, row.staticItem}) {
        EXPECT_TRUE(id == 0 || std::ranges::count(dialog->items, id, &DialogItem::id) == 1) << id;
    }
}

TEST(DialogTableTest, RowsAgreeWithTheirTemplates) {
    useResourceLibrary();
    std::apply([](const auto&... row) { (expectItems(row), ...); }, dialogTable);
}

// ---- The place of windows and items ------------------------------------------------------------

using platform::Rectangle;

TEST(DialogFittingTest, ItemsBeginAtTheMargin) {
    // A frame of 10 and 30 around an inner area of 200 by 100; margins of 7.
    const DialogExtent extent{{100, 50, 310, 180}, {0, 0, 200, 100}, {7, 7, 7, 7}, 3};
    for (const auto& [what, found, expected] :
         Rows<const char*, std::vector<FittedItem>, DialogFit>{
             {"fits", {{1, {7, 7, 193, 93}, false}}, {0, 0, {100, 50, 310, 180}}},
             {"right of the margin", {{1, {27, 7, 193, 93}, false}}, {-20, 0, {100, 50, 290, 180}}},
             {"too large",
              {{1, {7, 7, 50, 20}, false}, {9, {7, 7, 250, 120}, false}},
              {0, 0, {100, 50, 367, 207}}},
             {"a group's top counts from below",
              {{1, {7, 7, 193, 93}, false}, {9, {7, 4, 193, 93}, true}},
              {0, 0, {100, 50, 310, 180}}},
             {"no first item: the inner area counts",
              {{9, {50, 50, 60, 60}, false}},
              {7, 7, {100, 50, 324, 194}}},
         }) {
        const DialogFit fit = fitDialog(found, 1, extent);
        EXPECT_EQ(std::tuple(fit.moveX, fit.moveY), std::tuple(expected.moveX, expected.moveY))
            << what;
        EXPECT_EQ(fit.window, expected.window) << what;
    }
}

TEST(DialogFittingTest, PopupsRiseToStayInTheWorkArea) {
    const Rectangle window{0, 0, 50, 40};
    const Rectangle area{0, 0, 640, 480};
    EXPECT_EQ(placePopup(window, 300, 100, area), (Rectangle{250, 100, 300, 140}));
    EXPECT_EQ(placePopup(window, 300, 441, area), (Rectangle{250, 440, 300, 480}));
}

TEST_F(DialogTest, OpensWhereItIsWanted) {
    m_dialog.setScreenPosition(300, 120);
    m_windows.onceOpen([&](Window window) {
        const Rectangle place = m_windows.getDialog(window).getWindowRectangle();
        EXPECT_EQ(place.right, 300);
        EXPECT_EQ(place.top, 120);
        // Items from (7, 7) to (170, 64) units, a margin of 7, and the frame.
        EXPECT_EQ(place.width(), 2 * 177 + 10);
        EXPECT_EQ(place.height(), 2 * 71 + 30);
    });
    m_dialog.runModal(nullptr, m_ticket);
}

} // namespace
} // namespace zent::test
