// Memory may run out at any moment of any call. Each call is made again and again, with its first,
// second, third ... allocation failing, until it needs no more.

#include "support/AllocationFailure.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "support/EveryCall.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

constexpr std::uint32_t manyAllocations = 200000;

/// Whether the session still does what it is for.
void expectGoodSession(Job& job) {
    EXPECT_EQ(job.import(job.xml, ZENT_FORMAT_XML, ZENT_APPLY_SILENT_REPAIR), ZENT_OK);
    EXPECT_EQ(job.instructions("another"), ZENT_OK);
    EXPECT_NE(job.output.find("%TRVend\n"), std::string::npos);
}

bool isRightResult(ZentResult result) {
    switch (result) {
    case ZENT_OK:              // passed over, such as a trace, or a null handle was given
    case ZENT_ERR_DIALOG_KIND: // the same
    case ZENT_ERR_OUT_OF_MEMORY:
    case ZENT_ERR_XML_OTHER: // no document could be made
        return true;
    default:
        return false;
    }
}

/// Each round begins with the same session, or what one leaves behind could spare the next its
/// work. Of allocations by the thousand, as a list of stocks has them, every seventh will do.
void exhaust(Job& job, const Call& call) {
    SCOPED_TRACE(call.name);
    job.renew();
    call.call(job);
    const std::string handedOut = job.fetched();
    for (std::uint32_t before = 0; before < manyAllocations; before += before < 700 ? 1 : 7) {
        job.renew();
        ZentResult result = ZENT_OK;
        bool hasHappened = false;
        {
            const AllocationFailure failure(before);
            result = call.call(job);
            hasHappened = failure.hasHappened();
        }
        if (call.handsOut && result == ZENT_OK) {
            EXPECT_TRUE(job.fetched() == handedOut) << "at allocation " << before;
        }
        if (!hasHappened) {
            EXPECT_TRUE(result == ZENT_OK || result == ZENT_ERR_DIALOG_KIND) << result;
            return;
        }
        EXPECT_TRUE(isRightResult(result)) << result << " at allocation " << before;
        if (before % 50 == 0) {
            expectGoodSession(job);
        }
    }
    ADD_FAILURE() << "allocates without end";
}

TEST(AllocationFailureTest, EveryCallReportsItAndTheLibraryGoesOn) {
    const WindowSystemReplacement none(nullptr); // nobody is there to answer a dialog
    const ScratchUser scratch;
    UserMessage::setPresenter([](platform::WindowHandle, std::u16string_view, std::u16string_view,
                                 std::uint32_t) { return messageAnswer::ok; });
    {
        Job job;
        for (const Call& call : allCalls()) {
            exhaust(job, call);
            expectGoodSession(job);
        }
    }
    UserMessage::setPresenter(nullptr);
}

TEST(AllocationFailureTest, ADialogHasItsContextBeforeItsKindIsJudged) {
    Job job;
    const AllocationFailure failure(0);
    EXPECT_EQ(fnInvokeTarvoJobTicketDialog(job.s, 5, nullptr, 0), ZENT_ERR_OUT_OF_MEMORY);
}

TEST(AllocationFailureTest, AFailedStateBlobLeavesTheDocumentThatWaits) {
    const ScratchUser scratch;
    Job job;
    for (const auto& [next, expected] : Rows<std::uint32_t, const std::string&>{
             {ZENT_FORMAT_XML, job.xml}, {ZENT_FORMAT_STATE, job.blob}}) {
        bool hasHappened = true;
        for (std::uint32_t before = 0; hasHappened; ++before) {
            job.renew();
            EXPECT_EQ(fnExportJobTicket(job.s, nullptr, &job.size, ZENT_FORMAT_XML), ZENT_OK);
            {
                const AllocationFailure failure(before);
                job.exportAs(ZENT_FORMAT_STATE);
                hasHappened = failure.hasHappened();
            }
            EXPECT_EQ(job.exportAs(next), ZENT_OK);
            EXPECT_TRUE(job.fetched() == expected) << "at allocation " << before;
        }
    }
}

} // namespace
} // namespace zent::test
