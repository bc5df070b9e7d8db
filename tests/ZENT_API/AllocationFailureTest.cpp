// Memory may run out at any moment of any call. Each call is made again and again, with its first,
// second, third ... allocation failing, until it needs no more.

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "abi/ZentLiteral.h"
#include "ocore/CurrentWindowSystem.h"
#include "ocore/UserMessage.h"
#include "support/AllocationFailure.h"
#include "support/Rows.h"
#include "support/ScratchPreferences.h"
#include "support/TestFile.h"
#include "zent27.h"

namespace zent::test {
namespace {

constexpr std::uint32_t manyAllocations = 200000;

/// All that the calls need, made beforehand, so that only their own allocations count. The ticket
/// has problems, so that there is something to repair.
struct Job {
    ZentSessionType s = nullptr;
    TarvoJtSettingsType t = nullptr;
    std::string xml = readTestFile("../examples/exception-pages-with-inserts.xml");
    std::string blob;
    std::string output = std::string(1 << 20, '\0');
    ZentBool flag = 0;
    ZentBool flag2 = 0;
    std::int32_t number = 0;
    std::uint32_t size = 0;

    Job() {
        EXPECT_EQ(open(&s), ZENT_OK);
        EXPECT_EQ(fnGetTarvoJtSettingsFromSession(s, &t), ZENT_OK);
        renew();
        EXPECT_EQ(exportAs(ZENT_FORMAT_STATE), ZENT_OK);
        blob = fetched();
        EXPECT_EQ(exportAs(ZENT_FORMAT_XML), ZENT_OK);
        xml = fetched();
    }
    ~Job() { EXPECT_EQ(fnCloseSession(&s), ZENT_OK); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Brings the session back to the ticket that it began with. No result waits to be fetched
    /// then.
    void renew() {
        ASSERT_EQ(import(xml, ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP), ZENT_OK);
        ASSERT_EQ(fnSetNumberValue(s, t, ZT("copies"), 70000, 0), ZENT_OK);
    }
    /// What the last call handed out.
    std::string fetched() const { return output.substr(0, size); }

    static ZentResult open(ZentSessionType* opened) {
        return fnOpenSession(27, 6, 2, ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, opened);
    }
    ZentResult import(const std::string& data, std::uint32_t format, std::uint32_t mode) {
        return fnImportJobTicket(s, data.data(), static_cast<std::uint32_t>(data.size()), format,
                                 mode, nullptr, ZT("Problems"), &flag, &flag2);
    }
    ZentResult exportAs(std::uint32_t format) {
        size = static_cast<std::uint32_t>(output.size());
        return fnExportJobTicket(s, output.data(), &size, format);
    }
    ZentResult instructions(const char* document) {
        size = static_cast<std::uint32_t>(output.size());
        return fnGetPrintInstructions(s, output.data(), &size, document);
    }
};

struct Call {
    const char* name;
    std::function<ZentResult(Job&)> call;
    bool handsOut = false; // bytes, the same ones each time
};

std::vector<Call> allCalls() {
    return {
        {"open",
         [](Job&) {
             ZentSessionType opened = nullptr;
             const ZentResult result = Job::open(&opened);
             return result == ZENT_OK ? fnCloseSession(&opened) : result;
         }},
        {"create",
         [](Job& j) {
             TarvoJtSettingsType made = nullptr;
             const ZentResult result = fnCreateNewTarvoJtSettings(j.s, &made);
             return made != nullptr ? fnReleaseTarvoJtSettings(j.s, &made) : result;
         }},
        {"import", [](Job& j) { return j.import(j.xml, ZENT_FORMAT_XML, 1); }},
        {"import, reported", [](Job& j) { return j.import(j.xml, ZENT_FORMAT_XML, 5); }},
        {"import of a blob", [](Job& j) { return j.import(j.blob, ZENT_FORMAT_STATE, 2); }},
        {"export", [](Job& j) { return j.exportAs(ZENT_FORMAT_XML); }, true},
        {"export of a blob", [](Job& j) { return j.exportAs(ZENT_FORMAT_STATE); }, true},
        {"apply",
         [](Job& j) {
             return fnApplyPrinterCapabilitiesToSettings(j.s, 1, nullptr, ZT("Problems"), &j.flag,
                                                         &j.flag2);
         }},
        {"instructions", [](Job& j) { return j.instructions("document"); }, true},
        {"user context",
         [](Job& j) {
             j.size = static_cast<std::uint32_t>(j.output.size());
             return fnUpdateUserContextInformation(j.s, j.blob.data(),
                                                   static_cast<std::uint32_t>(j.blob.size()),
                                                   j.output.data(), &j.size);
         },
         true},
        {"dialog", [](Job& j) { return fnInvokeTarvoJobTicketDialog(j.s, 0, nullptr, 0); }},
        {"get settings", [](Job& j) { return fnGetTarvoJtSettingsFromSession(j.s, &j.t); }},
        {"is empty", [](Job& j) { return fnIsEmpty(j.s, j.t, &j.flag); }},
        {"is specified", [](Job& j) { return fnIsSpecified(j.s, j.t, ZT("sides"), &j.flag); }},
        {"count", [](Job& j) { return fnGetNumberOfValues(j.s, j.t, ZT("page-ranges"), &j.size); }},
        {"get range",
         [](Job& j) {
             return fnGetRangeValues(j.s, j.t, ZT("page-ranges"), &j.number, &j.number, 0, &j.flag);
         }},
        {"get resolution",
         [](Job& j) {
             return fnGetResolutionValue(j.s, j.t, ZT("printer-resolution"), &j.number, &j.number,
                                         &j.number, 0, &j.flag);
         }},
        {"set number", [](Job& j) { return fnSetNumberValue(j.s, j.t, ZT("copies"), 7, 0); }},
        {"get string",
         [](Job& j) {
             j.size = 0;
             return fnGetStringValue(j.s, j.t, ZT("sides"), nullptr, &j.size, 0, &j.flag);
         }},
        {"get number",
         [](Job& j) { return fnGetNumberValue(j.s, j.t, ZT("copies"), &j.number, 0, &j.flag); }},
        {"get size",
         [](Job& j) { return fnGetStockSizeValues(j.s, j.t, &j.number, &j.number, &j.flag); }},
        {"set string",
         [](Job& j) {
             return fnSetStringValue(j.s, j.t, ZT("job-name"), ZT("a name of my own"), 0);
         }},
        {"set range",
         [](Job& j) { return fnSetRangeValues(j.s, j.t, ZT("page-ranges"), 1, 5, 9); }},
        {"set resolution",
         [](Job& j) {
             return fnSetResolutionValue(j.s, j.t, ZT("printer-resolution"), 6, 6, 3, 0);
         }},
        {"set size", [](Job& j) { return fnSetStockSizeValues(j.s, j.t, 21000, 29700); }},
        {"unspecify", [](Job& j) { return fnUnspecifyFeature(j.s, j.t, ZT("page-ranges")); }},
        {"page settings and back",
         [](Job& j) {
             TarvoJtSettingsType page = nullptr;
             ZentResult result = fnCreateTarvoJtSettingsFromPageLevelFeature(
                 j.s, j.t, ZT("page-overrides"), 0, &page);
             if (page != nullptr) {
                 result = fnSetPageLevelFeatureFromTarvoJtSettings(j.s, j.t, ZT("page-overrides"),
                                                                   99, page);
                 EXPECT_EQ(fnReleaseTarvoJtSettings(j.s, &page), ZENT_OK);
             }
             return result;
         }},
        {"remove page",
         [](Job& j) {
             return fnRemovePageLevelFeatureFromTarvoJtSettings(j.s, j.t, ZT("page-overrides"), 1);
         }},
        {"set text preference",
         [](Job& j) {
             return fnSetPreferenceStringValue(j.s, ZT("MINE"), ZT("a name of my own"));
         }},
        {"get text preference",
         [](Job& j) {
             return fnGetPreferenceStringValue(j.s, ZT("MINE"), nullptr, &j.size, nullptr);
         }},
        {"set bool preference",
         [](Job& j) { return fnSetPreferenceBoolValue(j.s, ZT("MINE"), 1); }},
        {"get bool preference",
         [](Job& j) { return fnGetPreferenceBoolValue(j.s, ZT("MINE"), &j.flag, 1); }},
        {"set number preference",
         [](Job& j) { return fnSetPreferenceNumberValue(j.s, ZT("MINE"), 70000); }},
        {"get number preference",
         [](Job& j) { return fnGetPreferenceNumberValue(j.s, ZT("MINE"), &j.number, 1); }},
        {"set data preference",
         [](Job& j) { return fnSetPreferenceDataValue(j.s, ZT("MINE"), "abcd", 4); }},
        {"get data preference",
         [](Job& j) {
             return fnGetPreferenceDataValue(j.s, ZT("MINE"), nullptr, &j.size, nullptr, 0);
         }},
        {"unspecify all", [](Job& j) { return fnUnspecifyAllFeatures(j.s, j.t); }},
    };
}

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
    const ScratchPreferences scratch;
    UserMessage::setPresenter([](platform::WindowHandle, const CXString&, const CXString&,
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
    const ScratchPreferences scratch;
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
