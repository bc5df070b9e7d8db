// Sessions on different threads share tables, the compiled document type, run-time values and the
// resource library. The thread sanitizer watches this test.

#include <array>
#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "abi/ZentLiteral.h"
#include "support/ScratchPreferences.h"
#include "support/TestFile.h"
#include "zent27.h"

namespace zent::test {
namespace {

/// The ticket with a colour of its own for the sheets: a run-time value, which some threads share.
std::string withOwnColor(std::string ticket, std::uint32_t number) {
    const std::string keyword = "<media-color syntax=\"keyword\">white</media-color>";
    const std::string own = "<media-color syntax=\"name\" xml:space=\"preserve\">ink " +
                            std::to_string(number) + "</media-color>";
    for (std::size_t at = ticket.find(keyword); at != std::string::npos;
         at = ticket.find(keyword)) {
        ticket.replace(at, keyword.size(), own);
    }
    return ticket;
}

/// The whole main job, for different printers and both forms: a ticket comes in, is repaired, goes
/// out in all ways, and its instructions too. Gives the number of calls that failed.
int runJobs(std::uint32_t thread, const std::string& document) {
    int failures = 0;
    const auto expectOk = [&](ZentResult result) { failures += result == ZENT_OK ? 0 : 1; };
    std::string output(1 << 16, '\0');
    const auto room = [&] { return static_cast<std::uint32_t>(output.size()); };
    for (std::uint32_t round = 0; round < 6; ++round) {
        const std::string ticket = withOwnColor(document, round * 4 + thread % 4);
        ZentSessionType session = nullptr;
        TarvoJtSettingsType settings = nullptr;
        expectOk(fnOpenSession(27, 1 + (thread * 6 + round) % 51, 2, 1 + round % 3, 1, nullptr, 1,
                               &session));
        expectOk(fnGetTarvoJtSettingsFromSession(session, &settings));
        ZentBool problems = 0;
        ZentBool applied = 0;
        expectOk(fnImportJobTicket(
            session, ticket.data(), static_cast<std::uint32_t>(ticket.size()), ZENT_FORMAT_XML,
            ZENT_APPLY_SILENT_REPAIR, nullptr, nullptr, &problems, &applied));
        expectOk(fnSetPreferenceNumberValue(session, ZT("ROUND"), static_cast<int>(round)));
        std::uint32_t size = room();
        expectOk(fnGetPrintInstructions(session, output.data(), &size, "document"));
        size = room();
        expectOk(fnExportJobTicket(session, output.data(), &size, ZENT_FORMAT_STATE));
        expectOk(fnImportJobTicket(session, output.data(), size, ZENT_FORMAT_STATE,
                                   ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems, &applied));
        size = room();
        expectOk(fnExportJobTicket(session, output.data(), &size, ZENT_FORMAT_XML));
        failures +=
            fnSetNumberValue(session, settings, ZT("no-such"), 1, 0) == ZENT_ERR_UNKNOWN_FEATURE
                ? 0
                : 1;
        expectOk(fnCloseSession(&session));
    }
    return failures;
}

TEST(ThreadsTest, SessionsOfEightThreadsDontDisturbEachOther) {
    const ScratchPreferences scratch;
    const std::string ticket = readTestFile("../examples/exception-pages-with-inserts.xml");
    std::atomic<int> failures{0};
    std::array<std::thread, 8> threads;
    for (std::uint32_t i = 0; i < threads.size(); ++i) {
        threads[i] = std::thread([&, i] { failures += runJobs(i, ticket); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(failures, 0);
}

} // namespace
} // namespace zent::test
