// Sessions on different threads share tables, the compiled document type, run-time values and the
// resource library. The thread sanitizer watches this test.

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "abi/ZentLiteral.h"
#include "support/MemoryInUse.h"
#include "support/Testing.h"
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
int runJobs(std::uint32_t thread, const std::string& document, std::string& output) {
    int failures = 0;
    const auto expectOk = [&](ZentResult result) { failures += result == ZENT_OK ? 0 : 1; };
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

std::string nameOf(std::uint32_t ticket, std::uint32_t page) {
    return "ink" + std::to_string(ticket) + "." + std::to_string(page);
}

/// A ticket with a sheet colour of its own for each of many pages. No two tickets share one.
std::string makeTicketOfNames(std::uint32_t ticket, std::uint32_t names) {
    const auto range = [](const std::string& name, const std::string& page) {
        return "<" + name +
               " syntax=\"1setOf\"><value syntax=\"rangeOfInteger\"><lower-bound "
               "syntax=\"integer\">" +
               page + "</lower-bound><upper-bound syntax=\"integer\">" + page +
               "</upper-bound></value></" + name + ">";
    };
    std::string overrides;
    for (std::uint32_t page = 1; page <= names; ++page) {
        overrides += "<value syntax=\"collection\">" + range("input-documents", "1") +
                     range("pages", std::to_string(page)) +
                     "<media-col syntax=\"collection\"><media-color syntax=\"name\" "
                     "xml:space=\"preserve\">" +
                     nameOf(ticket, page) + "</media-color></media-col></value>";
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE ordo SYSTEM "
           "\"ordo-v02025.dtd\">\n<ordo><job-template-attributes><page-overrides "
           "syntax=\"1setOf\">" +
           overrides + "</page-overrides></job-template-attributes></ordo>";
}

/// Gives the number of calls that failed.
int runTicketOfNames(std::uint32_t number, std::uint32_t names, std::string& output) {
    int failures = 0;
    const auto expectOk = [&](ZentResult result) { failures += result == ZENT_OK ? 0 : 1; };
    const std::string ticket = makeTicketOfNames(number, names);
    ZentSessionType session = nullptr;
    ZentBool problems = 0;
    ZentBool applied = 0;
    expectOk(fnOpenSession(27, 1, 2, ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, &session));
    expectOk(fnImportJobTicket(session, ticket.data(), static_cast<std::uint32_t>(ticket.size()),
                               ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems,
                               &applied));
    auto size = static_cast<std::uint32_t>(output.size());
    expectOk(fnGetPrintInstructions(session, output.data(), &size, "document"));
    const std::string line = ' ' + nameOf(number, names) + " opaque ";
    failures += output.substr(0, size).find(line) == std::string::npos ? 1 : 0;
    expectOk(fnCloseSession(&session));
    return failures;
}

/// For `work`, which takes a number and a buffer for output and gives its failures, one number
/// each.
template <typename Work>
int onEightThreads(std::uint32_t count, Work work) {
    std::atomic<int> failures{0};
    std::atomic<std::uint32_t> next{0};
    std::array<std::thread, 8> threads;
    for (std::thread& thread : threads) {
        thread = std::thread([&] {
            std::string output(1 << 20, '\0');
            for (std::uint32_t number = next++; number < count; number = next++) {
                failures += work(number, output);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return failures;
}

std::uint32_t numberFromEnvironment(const char* name, std::uint32_t otherwise) {
    const char* const number = std::getenv(name);
    return number == nullptr ? otherwise : static_cast<std::uint32_t>(std::atoi(number));
}

/// ZENT_TEST_NAMES plays this with more than a quick run has time for: with a million names the
/// memory doesn't grow either.
TEST(ThreadsTest, TicketsBringAnyNumberOfNamesOfTheirOwn) {
    const ScratchUser scratch;
    constexpr std::uint32_t namesOfTicket = 250;
    const std::uint32_t quarter =
        numberFromEnvironment("ZENT_TEST_NAMES", 4000) / namesOfTicket / 4;
    std::int64_t memoryOfFirst = 0;
    for (std::uint32_t first = 0; first < 4 * quarter; first += quarter) {
        EXPECT_EQ(onEightThreads(
                      quarter,
                      [&](std::uint32_t number, std::string& output) {
            return runTicketOfNames(first + number, namesOfTicket, output);
                      }),
                  0);
        memoryOfFirst = first == 0 ? readMemoryInUse() : memoryOfFirst;
    }
    EXPECT_LT(readMemoryInUse() - memoryOfFirst, 16 << 10);
}

/// Ends the process while other threads are in calls, at some point of their work. The XML system
/// has been started: on Linux that starts libraries of the network, which don't bear an exit
/// meanwhile.
[[noreturn]] void endDuringCalls(std::uint32_t number) {
    std::string first(1 << 20, '\0');
    runTicketOfNames(0, 1, first);
    std::atomic<int> running{0};
    for (std::uint32_t thread = 0; thread < 4; ++thread) {
        std::thread([&running, thread] {
            std::string output(1 << 20, '\0');
            ++running;
            for (std::uint32_t i = 0;; ++i) {
                runTicketOfNames(i * 4 + thread, 3, output);
            }
        }).detach();
    }
    while (running != 4) {
        std::this_thread::yield();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(number * 7 % 50));
    std::exit(0);
}

/// ZENT_TEST_EXITS plays this more often than a quick run has time for.
TEST(ThreadsDeathTest, TheProcessMayEndDuringCalls) {
    const ScratchUser scratch;
    const std::uint32_t exits = numberFromEnvironment("ZENT_TEST_EXITS", 12);
    for (std::uint32_t i = 0; i < exits; ++i) {
        EXPECT_EXIT(endDuringCalls(i), testing::ExitedWithCode(0), "");
    }
}

TEST(ThreadsTest, SessionsOfEightThreadsDontDisturbEachOther) {
    const ScratchUser scratch;
    const std::string ticket = readTestFile("../examples/exception-pages-with-inserts.xml");
    EXPECT_EQ(
        onEightThreads(8, [&](std::uint32_t number,
                              std::string& output) { return runJobs(number, ticket, output); }),
        0);
}

} // namespace
} // namespace zent::test
