#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "ocore/Repair/TicketRepair.h"
#include "support/OrdoDocument.h"
#include "support/ProblemText.h"
#include "support/TestFile.h"

namespace zent::test {
namespace {

const char* const examples[] = {
    "booklet", "brochure-with-covers", "exception-pages-with-inserts", "mailing", "report", "tabs"};

// Whatever a ticket asks for, once repaired each printer can do it; its own defaults it can do as
// they are.
TEST(RepairAmongPrintersTest, ARepairedTicketHasNoProblems) {
    useResourceLibrary();
    useOrdoDtd();
    std::vector<FeatureSettings> tickets;
    for (const char* const name : examples) {
        tickets.emplace_back(readOrdo(readTestFile(std::string("../examples/") + name + ".xml")));
    }
    std::size_t found = 0;
    for (const DriverInfo& driver : getDriverTable()) {
        const PrinterModel model(driver.model, driver.pdl);
        for (const std::uint32_t form : {1U, 2U}) {
            SCOPED_TRACE(testing::Message() << "model " << driver.model << ", language "
                                            << driver.pdl << ", form " << form);
            const Capabilities capabilities(model, form);
            const PrinterDefaults defaults(model, form);
            FeatureSettings own = defaults.getSettings();
            SettingsProblemList none;
            EXPECT_TRUE(validate(capabilities, own, none)) << textOfProblems(none);
            for (const FeatureSettings& ticket : tickets) {
                FeatureSettings repaired = ticket;
                bool hadProblems = false;
                EXPECT_TRUE(applyCapabilitiesToJobTicket(capabilities, repaired,
                                                         defaults.getSettings(), hadProblems,
                                                         SilentReporter(problemPolicy::repair)));
                found += hadProblems ? 1 : 0;
                repaired.normalize(); // as the next import does
                SettingsProblemList remaining;
                EXPECT_TRUE(validate(capabilities, repaired, remaining))
                    << textOfProblems(remaining);
            }
        }
    }
    EXPECT_GT(found, 0U);
}

} // namespace
} // namespace zent::test
