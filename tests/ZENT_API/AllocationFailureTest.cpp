// Memory may run out at any moment of any call. Each call is made again and again, with its first,
// second, third ... allocation failing, until it needs no more.

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "ocore/CurrentWindowSystem.h"
#include "ocore/UserMessage.h"
#include "support/AllocationFailure.h"
#include "support/ScratchPreferences.h"
#include "support/TestFile.h"
#include "zent27.h"

namespace zent::test {
namespace {

using Text = std::basic_string<ZentChar>;
Text wide(const char* ascii) { return {ascii, ascii + std::char_traits<char>::length(ascii)}; }

constexpr std::uint32_t manyAllocations = 200000;

/// All that the calls need, made beforehand, so that only their own allocations count.
struct Job {
    ZentSessionType session = nullptr;
    TarvoJtSettingsType ticket = nullptr;
    std::string xml = readTestFile("../examples/exception-pages-with-inserts.xml");
    std::string blob;
    Text copies = wide("copies");
    Text sides = wide("sides");
    Text own = wide("a name of my own");
    Text jobName = wide("job-name");
    Text ranges = wide("page-ranges");
    Text resolution = wide("printer-resolution");
    Text overrides = wide("page-overrides");
    Text preference = wide("MINE");
    Text title = wide("Problems");
    std::string output = std::string(1 << 20, '\0');
    ZentBool flag = 0;
    ZentBool flag2 = 0;
    std::int32_t number = 0;
    std::uint32_t size = 0;

    Job() {
        EXPECT_EQ(open(&session), ZENT_OK);
        EXPECT_EQ(fnGetTarvoJtSettingsFromSession(session, &ticket), ZENT_OK);
        blob = xml;
        EXPECT_EQ(import(blob, ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP), ZENT_OK);
        EXPECT_EQ(exportAs(ZENT_FORMAT_STATE), ZENT_OK);
        blob.assign(output, 0, size);
    }
    ~Job() { EXPECT_EQ(fnCloseSession(&session), ZENT_OK); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    static ZentResult open(ZentSessionType* opened) {
        return fnOpenSession(27, 6, 2, ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, opened);
    }
    ZentResult import(const std::string& data, std::uint32_t format, std::uint32_t mode) {
        return fnImportJobTicket(session, data.data(), static_cast<std::uint32_t>(data.size()),
                                 format, mode, nullptr, title.c_str(), &flag, &flag2);
    }
    ZentResult exportAs(std::uint32_t format) {
        size = static_cast<std::uint32_t>(output.size());
        return fnExportJobTicket(session, output.data(), &size, format);
    }
    ZentResult instructions(const char* document) {
        size = static_cast<std::uint32_t>(output.size());
        return fnGetPrintInstructions(session, output.data(), &size, document);
    }
};

struct Call {
    const char* name;
    std::function<ZentResult(Job&)> call;
};

std::vector<Call> sessionCalls() {
    return {
        {"open",
         [](Job&) {
             ZentSessionType opened = nullptr;
             const ZentResult result = Job::open(&opened);
             return result == ZENT_OK ? fnCloseSession(&opened) : result;
         }},
        {"create",
         [](Job& job) {
             TarvoJtSettingsType made = nullptr;
             const ZentResult result = fnCreateNewTarvoJtSettings(job.session, &made);
             return made != nullptr ? fnReleaseTarvoJtSettings(job.session, &made) : result;
         }},
        {"import", [](Job& job) { return job.import(job.xml, ZENT_FORMAT_XML, 1); }},
        {"import, reported", [](Job& job) { return job.import(job.xml, ZENT_FORMAT_XML, 5); }},
        {"import of a blob", [](Job& job) { return job.import(job.blob, ZENT_FORMAT_STATE, 2); }},
        {"export",
         [](Job& job) {
             fnSetNumberValue(job.session, job.ticket, job.copies.c_str(), 2, 0);
             return job.exportAs(ZENT_FORMAT_XML);
         }},
        {"export of a blob",
         [](Job& job) {
             fnSetNumberValue(job.session, job.ticket, job.copies.c_str(), 2, 0);
             return job.exportAs(ZENT_FORMAT_STATE);
         }},
        {"apply",
         [](Job& job) {
             return fnApplyPrinterCapabilitiesToSettings(job.session, 1, nullptr, job.title.c_str(),
                                                         &job.flag, &job.flag2);
         }},
        {"instructions", [](Job& job) { return job.instructions("document"); }},
        {"user context",
         [](Job& job) {
             job.size = static_cast<std::uint32_t>(job.output.size());
             return fnUpdateUserContextInformation(job.session, job.blob.data(),
                                                   static_cast<std::uint32_t>(job.blob.size()),
                                                   job.output.data(), &job.size);
         }},
        {"dialog",
         [](Job& job) { return fnInvokeTarvoJobTicketDialog(job.session, 0, nullptr, 0); }},
    };
}

std::vector<Call> featureCalls() {
    return {
        {"get settings",
         [](Job& job) { return fnGetTarvoJtSettingsFromSession(job.session, &job.ticket); }},
        {"is empty", [](Job& job) { return fnIsEmpty(job.session, job.ticket, &job.flag); }},
        {"is specified",
         [](Job& job) {
             return fnIsSpecified(job.session, job.ticket, job.sides.c_str(), &job.flag);
         }},
        {"count",
         [](Job& job) {
             return fnGetNumberOfValues(job.session, job.ticket, job.ranges.c_str(), &job.size);
         }},
        {"get range",
         [](Job& job) {
             return fnGetRangeValues(job.session, job.ticket, job.ranges.c_str(), &job.number,
                                     &job.number, 0, &job.flag);
         }},
        {"get resolution",
         [](Job& job) {
             return fnGetResolutionValue(job.session, job.ticket, job.resolution.c_str(),
                                         &job.number, &job.number, &job.number, 0, &job.flag);
         }},
        {"set number",
         [](Job& job) {
             return fnSetNumberValue(job.session, job.ticket, job.copies.c_str(), 7, 0);
         }},
        {"get string",
         [](Job& job) {
             job.size = 0;
             return fnGetStringValue(job.session, job.ticket, job.sides.c_str(), nullptr, &job.size,
                                     0, &job.flag);
         }},
        {"get number",
         [](Job& job) {
             return fnGetNumberValue(job.session, job.ticket, job.copies.c_str(), &job.number, 0,
                                     &job.flag);
         }},
        {"get size",
         [](Job& job) {
             return fnGetStockSizeValues(job.session, job.ticket, &job.number, &job.number,
                                         &job.flag);
         }},
        {"set string",
         [](Job& job) {
             return fnSetStringValue(job.session, job.ticket, job.jobName.c_str(), job.own.c_str(),
                                     0);
         }},
        {"set range",
         [](Job& job) {
             return fnSetRangeValues(job.session, job.ticket, job.ranges.c_str(), 1, 5, 9);
         }},
        {"set resolution",
         [](Job& job) {
             return fnSetResolutionValue(job.session, job.ticket, job.resolution.c_str(), 6, 6, 3,
                                         0);
         }},
        {"set size",
         [](Job& job) { return fnSetStockSizeValues(job.session, job.ticket, 21000, 29700); }},
        {"unspecify",
         [](Job& job) { return fnUnspecifyFeature(job.session, job.ticket, job.ranges.c_str()); }},
        {"page settings and back",
         [](Job& job) {
             TarvoJtSettingsType page = nullptr;
             ZentResult result = fnCreateTarvoJtSettingsFromPageLevelFeature(
                 job.session, job.ticket, job.overrides.c_str(), 0, &page);
             if (page != nullptr) {
                 result = fnSetPageLevelFeatureFromTarvoJtSettings(job.session, job.ticket,
                                                                   job.overrides.c_str(), 99, page);
                 EXPECT_EQ(fnReleaseTarvoJtSettings(job.session, &page), ZENT_OK);
             }
             return result;
         }},
        {"remove page",
         [](Job& job) {
             return fnRemovePageLevelFeatureFromTarvoJtSettings(job.session, job.ticket,
                                                                job.overrides.c_str(), 1);
         }},
        {"set text preference",
         [](Job& job) {
             return fnSetPreferenceStringValue(job.session, job.preference.c_str(),
                                               job.own.c_str());
         }},
        {"get text preference",
         [](Job& job) {
             return fnGetPreferenceStringValue(job.session, job.preference.c_str(), nullptr,
                                               &job.size, nullptr);
         }},
        {"set bool preference",
         [](Job& job) { return fnSetPreferenceBoolValue(job.session, job.preference.c_str(), 1); }},
        {"get bool preference",
         [](Job& job) {
             return fnGetPreferenceBoolValue(job.session, job.preference.c_str(), &job.flag, 1);
         }},
        {"set number preference",
         [](Job& job) {
             return fnSetPreferenceNumberValue(job.session, job.preference.c_str(), 70000);
         }},
        {"get number preference",
         [](Job& job) {
             return fnGetPreferenceNumberValue(job.session, job.preference.c_str(), &job.number, 1);
         }},
        {"set data preference",
         [](Job& job) {
             return fnSetPreferenceDataValue(job.session, job.preference.c_str(), "abcd", 4);
         }},
        {"get data preference",
         [](Job& job) {
             return fnGetPreferenceDataValue(job.session, job.preference.c_str(), nullptr,
                                             &job.size, nullptr, 0);
         }},
        {"unspecify all", [](Job& job) { return fnUnspecifyAllFeatures(job.session, job.ticket); }},
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

void exhaust(Job& job, const Call& call) {
    SCOPED_TRACE(call.name);
    for (std::uint32_t before = 0; before < manyAllocations; ++before) {
        ZentResult result = ZENT_OK;
        bool hasHappened = false;
        {
            const AllocationFailure failure(before);
            result = call.call(job);
            hasHappened = failure.hasHappened();
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
        for (const Call& call : sessionCalls()) {
            exhaust(job, call);
            expectGoodSession(job);
        }
        for (const Call& call : featureCalls()) {
            exhaust(job, call);
            expectGoodSession(job);
        }
    }
    UserMessage::setPresenter(nullptr);
}

} // namespace
} // namespace zent::test
