#include "ocore/Repair/RepairReport.h"

#include "ocore/Checking/SettingsValidator.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
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

} // namespace
} // namespace zent::test
