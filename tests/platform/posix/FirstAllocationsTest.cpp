// Memory may run out while a process uses the library for the first time, when tables are built and
// the XML system starts. Each allocation fails in a process of its own.

#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

#include "support/AllocationFailure.h"
#include "support/ScratchUser.h"
#include "support/TestFile.h"
#include "support/Testing.h"
#include "zent27.h"

namespace zent::test {
namespace {

/// What a process ends with.
enum End : int { right, wrongResult, noSecondTime, hasNotFailed };

/// Opens a session and imports a ticket.
ZentResult openAndImport(const std::string& ticket) {
    ZentSessionType session = nullptr;
    ZentResult result = fnOpenSession(27, 6, 2, ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, &session);
    if (result != ZENT_OK) {
        return result;
    }
    ZentBool problems = 0;
    ZentBool applied = 0;
    result = fnImportJobTicket(session, ticket.data(), static_cast<std::uint32_t>(ticket.size()),
                               ZENT_FORMAT_XML, ZENT_APPLY_SILENT_REPAIR, nullptr, nullptr,
                               &problems, &applied);
    fnCloseSession(&session);
    return result;
}

End failOnce(const std::string& ticket, std::uint32_t allocationsBefore) {
    ZentResult result = ZENT_OK;
    bool hasHappened = false;
    {
        const AllocationFailure failure(allocationsBefore);
        result = openAndImport(ticket);
        hasHappened = failure.hasHappened();
    }
    if (!hasHappened) {
        return hasNotFailed;
    }
    if (result != ZENT_OK && result != ZENT_ERR_OUT_OF_MEMORY) { // OK if it was for a trace or so
        return wrongResult;
    }
    return openAndImport(ticket) == ZENT_OK ? right : noSecondTime;
}

/// ZENT_TEST_ALLOCATIONS is how many there are from one that fails to the next; 1 takes a while.
TEST(FirstAllocationsTest, EachMayFailAndTheNextCallWorks) {
    const ScratchUser scratch;
    const std::string ticket = readTestFile("../examples/exception-pages-with-inserts.xml");
    const char* const wanted = std::getenv("ZENT_TEST_ALLOCATIONS");
    const int step = wanted == nullptr ? 97 : std::atoi(wanted);
    int end = right;
    for (int before = 0; end != hasNotFailed; before += step) {
        const pid_t child = fork();
        if (child == 0) {
            _exit(failOnce(ticket, static_cast<std::uint32_t>(before)));
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFEXITED(status)) << "ended by a signal at allocation " << before;
        end = WEXITSTATUS(status);
        EXPECT_TRUE(end == right || end == hasNotFailed) << end << " at allocation " << before;
    }
}

} // namespace
} // namespace zent::test
