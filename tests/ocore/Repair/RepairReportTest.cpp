#include "ocore/Repair/RepairReport.h"

#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Repair/TicketRepair.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/JobTicketUserMessage.h"
#include "plugin_ui/Reports/SettingsProblemReporter.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"
#include "support/ListCapabilities.h"

namespace zent::test {
namespace {

const char* const offered =
    "job-creation-attributes-supported[value=copies value=sides value=media-col "
    "value=page-overrides value=insert-sheet value=force-front-side value=forms-col "
    "value=job-name value=cover-front value=printer-resolution value=job-save-disposition] "
    "copies-supported(lower-bound=1 upper-bound=9) sides-supported[value=one-sided] "
    "media-col-supported[value=media-size value=media-color] "
    "media-color-supported[value=white] media-size-supported{} "
    "force-front-side-supported(lower-bound=1 upper-bound=99) "
    "page-overrides-supported[value=pages value=sides value=media-col value=media-color] "
    "insert-sheet-supported[value=insert-after-page-number] "
    "insert-after-page-number-supported(lower-bound=0 upper-bound=99) "
    "cover-front-supported[value=media-col] forms-col-supported[value=form-name] "
    "printer-resolution-supported[value<cross-feed=600 feed-direction=600 units=3>] "
    "job-save-disposition-supported[value=save-disposition]";

const char* const ticketText =
    "sides=two-sided-long-edge new-thing(lower-bound=1 upper-bound=2) "
    "printer-resolution<cross-feed=300 feed-direction=300 units=3> "
    "media-col{media-size{x-dimension=1 y-dimension=2}} "
    "page-overrides[value{pages[value(lower-bound=3 upper-bound=5)] sides=both media-tooth=fine} "
    "value{pages[value(lower-bound=7 upper-bound=7)] media-col{media-color=pink}} "
    "value{pages=x sides=both}] "
    "insert-sheet[value{insert-after-page-number=100}] force-front-side[value=3 value=400] "
    "cover-front{finishings[value=enum:3 value=enum:99]} forms-col[value{}] job-save-disposition{}";

const char* const defaults = "sides=one-sided media-col{media-size{x-dimension=21000 "
                             "y-dimension=29700}} job-save-disposition{save-disposition=none}";

class RepairReportTest : public testing::Test {
protected:
    RepairReportTest() : m_capabilities((useResourceLibrary(), capabilitiesOf(offered))) {
        validate(m_capabilities, m_ticket, m_problems);
    }

    WindowSystemReplacement m_noWindows{nullptr}; // so that all is asked in boxes
    Capabilities m_capabilities;
    Settings m_ticket{listOf(ticketText)};
    Settings m_defaults{listOf(defaults)};
    SettingsProblemList m_problems;
};

TEST_F(RepairReportTest, TheTextTellsEachProblemByGroupAndPart) {
    const RepairReport report(m_problems, m_defaults);
    const char* const expected = "Settings that this printer doesn't have, to be removed\r\n"
                                 "\r\n\tWhole job:\r\n"
                                 "\tnew-thing: (1-2) -> Removed\r\n"
                                 "\r\n\tFront cover:\r\n"
                                 "\tFinishing: No finishing 99 -> Removed\r\n"
                                 "\r\n\tException pages (3 - 5):\r\n"
                                 "\tPaper tooth: Fine -> Removed\r\n"
                                 "\r\n"
                                 "Values that this printer doesn't take, to be changed\r\n"
                                 "\r\n\tWhole job:\r\n"
                                 "\tSides printed: Two-sided, long edge -> One-sided\r\n"
                                 "\tResolution: (300 x 300, 3) -> Removed\r\n"
                                 "\tMedia size: (1 x 2) -> (21000 x 29700)\r\n"
                                 "\r\n\tChapter start pages (400):\r\n"
                                 "\tChapter start pages: 400 -> Removed from the list\r\n"
                                 "\r\n\tException pages (3 - 5):\r\n"
                                 "\tSides printed: both -> Removed\r\n"
                                 "\r\n\tException pages (7):\r\n"
                                 "\tMedia color: Pink -> Removed\r\n"
                                 "\r\n\tException pages:\r\n"
                                 "\tSides printed: both -> Removed\r\n"
                                 "\r\n\tPage inserts (100):\r\n"
                                 "\tInsert after page: 100 -> Removed\r\n"
                                 "\r\n"
                                 "Incomplete settings, to be completed or removed\r\n"
                                 "\r\n\tWhole job:\r\n"
                                 "\tForm name:  -> Removed from the list\r\n"
                                 "\tPrint or save:  -> Printer default added\r\n";
    EXPECT_EQ(report.getText(RepairWording::offered).toNarrow(), expected);
    const std::string plain = report.getText(RepairWording::none).toNarrow();
    EXPECT_TRUE(plain.starts_with("Settings that this printer doesn't have\r\n\r\n\tWhole job:\r\n"
                                  "\tnew-thing\r\n"));
    EXPECT_TRUE(report.getText(RepairWording::made)
                    .toNarrow()
                    .ends_with("Incomplete settings, completed or removed\r\n\r\n\tWhole job:\r\n"
                               "\tForm name:  -> Removed from the list\r\n"
                               "\tPrint or save:  -> Printer default added\r\n"));
}

TEST_F(RepairReportTest, TheListTellsProgramsTheSame) {
    m_ticket = Settings(listOf("page-overrides[value{} value{media-col{media-color=pink}}] "
                               "job-name=name:" +
                               std::string(256, 'n') + " sides=both"));
    SettingsProblemList problems;
    validate(m_capabilities, m_ticket, problems);
    const RepairReport report(problems, m_defaults);
    ASSERT_EQ(report.getEntries().size(), 3U);
    const RepairEntry& name = report.getEntries()[0];
    EXPECT_EQ(name.rule, ProblemRule::outOfRange);
    EXPECT_EQ(name.capability, u"job-name-allowable-char-limit");
    EXPECT_TRUE(name.hasLimits);
    EXPECT_EQ(name.upperLimit, 255);
    EXPECT_EQ(name.newValue.text.length(), 255);
    const RepairEntry& sides = report.getEntries()[1];
    EXPECT_EQ(sides.action, RepairAction::replace);
    EXPECT_EQ(sides.oldValue.text, u"both");
    EXPECT_EQ(sides.newValue.text, u"one-sided");
    EXPECT_EQ(sides.newValue.display, u"One-sided");
    const RepairEntry& color = report.getEntries()[2];
    EXPECT_EQ(color.rule, ProblemRule::unsupportedValue);
    EXPECT_EQ(color.capability, u"media-color-supported");
    EXPECT_EQ(color.feature, feature::mediaColor);
    EXPECT_EQ(color.path, u"page-overrides[2]/media-col/media-color");
    EXPECT_EQ(color.location.entry, 2U);
    EXPECT_FALSE(color.location.hasPages);
    EXPECT_EQ(color.action, RepairAction::remove);
}

// What each mode does, the tests of the exported calls tell.
TEST_F(RepairReportTest, WithoutWindowsABoxAsks) {
    for (const std::int32_t button : {messageAnswer::ok, messageAnswer::cancel}) {
        SCOPED_TRACE(button);
        const BoxCapture boxes(button);
        Settings ticket(listOf("copies=2 sides=both"));
        bool hadProblems = false;
        const bool isUsable = applyCapabilitiesToJobTicket(
            m_capabilities, ticket, m_defaults, hadProblems,
            SettingsProblemReporter(nullptr, u"title", true, reportMode::reportChoice,
                                    problemPolicy::repair));
        EXPECT_TRUE(hadProblems);
        EXPECT_EQ(isUsable, button == messageAnswer::ok);
        EXPECT_EQ(textOfList(*ticket.getAttrNodeList()),
                  isUsable ? "copies=2 sides=one-sided" : "copies=2 sides=both");
        ASSERT_EQ(boxes.shown().size(), 1U);
        const ShownBox& box = boxes.shown()[0];
        EXPECT_EQ(box.title, u"title");
        EXPECT_EQ(box.flags & messageStyle::okCancel, messageStyle::okCancel);
        EXPECT_TRUE(box.body.view().starts_with(resourceText(IDS_REPAIR_QUESTION).view()));
        EXPECT_GT(box.body.find(u"both -> One-sided"), 0);
    }
}

TEST_F(RepairReportTest, ANoticeHasOneButton) {
    const BoxCapture boxes;
    EXPECT_EQ(
        SettingsProblemReporter(nullptr, u"title", false, 2, 1).report(m_problems, m_defaults),
        problemPolicy::repair);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].flags & messageStyle::okCancel, 0U);
    EXPECT_TRUE(boxes.shown()[0].body.view().starts_with(resourceText(IDS_REPAIR_NOTICE).view()));
}

TEST_F(RepairReportTest, AMessageOnATicketNamesIt) {
    setExceptionLocation(u"a.cpp", 5);
    const AttributeTypeMismatchException exception;
    const BoxCapture boxes;
    JobTicketUserMessage(nullptr, IDS_ERROR_TITLE, u"a.xml", exception).clone()->show();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, resourceText(IDS_ERROR_TITLE));
    EXPECT_EQ(boxes.shown()[0].body,
              resourceText(IDS_TICKET_FAILURE) + u"\r\n\r\na.xml\r\n\r\n009:000:0005");
}

} // namespace
} // namespace zent::test
