#include <cstring>
#include <functional>

#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

/// In plain C: opens a session, sets and reads a feature, and closes it again; the number of the
/// step that failed, 0 if none.
extern "C" int useLibraryInC();

namespace zent::test {
namespace {

using testing::StartsWith;

/// What a box says last: the error's number, without the line in the source at its end.
std::string errorIn(const MessageBox& box) {
    const std::size_t start = box.text.rfind("\n\n");
    const std::string number = start == std::string::npos ? "" : box.text.substr(start + 2);
    return number.substr(0, number.rfind(':'));
}

TEST(HeaderTest, ServesPlainC) { EXPECT_EQ(useLibraryInC(), 0); }

ZentResult open(std::uint32_t version, ZentBool silent, ZentSessionType* session) {
    return fnOpenSession(version, 1, 1, 7, silent, nullptr, 1, session);
}

TEST(SessionCallsTest, AnotherVersionIsRefusedWithoutAWord) {
    MessageBoxes boxes;
    int anything = 0;
    auto* const before = reinterpret_cast<ZentSessionType>(&anything);
    for (const std::uint32_t version : {0U, 26U, 28U}) {
        ZentSessionType session = before;
        EXPECT_EQ(open(version, 0, &session), ZENT_ERR_VERSION);
        EXPECT_EQ(session, before);
        EXPECT_EQ(open(version, 0, nullptr), ZENT_ERR_VERSION);
    }
    EXPECT_TRUE(boxes.take().empty());
}

TEST(SessionCallsTest, AClosedSessionIsGone) {
    ZentSessionType session = nullptr;
    ASSERT_EQ(open(27, 1, &session), ZENT_OK);
    ZentSessionType other = nullptr;
    ASSERT_EQ(fnOpenSession(27, 1, 1, 1, 1, ZT("My preferences"), 0, &other), ZENT_OK);
    EXPECT_NE(session, other);
    EXPECT_EQ(fnCloseSession(&session), ZENT_OK);
    EXPECT_EQ(session, nullptr);
    MessageBoxes boxes;
    EXPECT_EQ(fnCloseSession(&session), ZENT_ERR_SESSION);
    EXPECT_EQ(session, nullptr);
    EXPECT_EQ(boxes.take().size(), 1U);
    EXPECT_EQ(fnCloseSession(&other), ZENT_OK);
}

/// A call on a session, with zeros and null for all else that it may be given.
template <typename... Others>
std::function<ZentResult(ZentSessionType)> onSession(ZentResult(ZENT_CALL* call)(ZentSessionType,
                                                                                 Others...)) {
    return [call](ZentSessionType s) { return call(s, Others{}...); };
}

/// Every call that begins with a session handle.
std::vector<std::function<ZentResult(ZentSessionType)>> sessionCalls() {
    return {[](auto s) { return fnCloseSession(&s); },
            onSession(fnGetTarvoJtSettingsFromSession),
            onSession(fnCreateNewTarvoJtSettings),
            onSession(fnReleaseTarvoJtSettings),
            onSession(fnIsEmpty),
            onSession(fnIsSpecified),
            onSession(fnGetNumberOfValues),
            onSession(fnGetStringValue),
            onSession(fnGetNumberValue),
            onSession(fnGetRangeValues),
            onSession(fnGetResolutionValue),
            onSession(fnGetStockSizeValues),
            onSession(fnUnspecifyFeature),
            onSession(fnUnspecifyAllFeatures),
            onSession(fnSetStringValue),
            onSession(fnSetNumberValue),
            onSession(fnSetRangeValues),
            onSession(fnSetResolutionValue),
            onSession(fnSetStockSizeValues),
            onSession(fnCreateTarvoJtSettingsFromPageLevelFeature),
            onSession(fnSetPageLevelFeatureFromTarvoJtSettings),
            onSession(fnRemovePageLevelFeatureFromTarvoJtSettings),
            onSession(fnImportJobTicket),
            onSession(fnExportJobTicket),
            onSession(fnApplyPrinterCapabilitiesToSettings),
            onSession(fnGetPrintInstructions),
            onSession(fnInvokeTarvoJobTicketDialog),
            onSession(fnUpdateUserContextInformation),
            onSession(fnGetPreferenceBoolValue),
            onSession(fnGetPreferenceNumberValue),
            onSession(fnGetPreferenceStringValue),
            onSession(fnGetPreferenceDataValue),
            onSession(fnSetPreferenceBoolValue),
            onSession(fnSetPreferenceNumberValue),
            onSession(fnSetPreferenceStringValue),
            onSession(fnSetPreferenceDataValue)};
}

const char readOnlyMemory[20'000] = {1};

/// Of a session or of settings, to memory that can't be written, and to none at all.
template <typename Handle>
Handle readOnly() {
    return reinterpret_cast<Handle>(const_cast<char*>(&readOnlyMemory[8'000]));
}
template <typename Handle>
Handle unmapped() {
    return reinterpret_cast<Handle>(std::uintptr_t{8}); // NOLINT(performance-no-int-to-ptr)
}

TEST(SessionCallsTest, ABadSessionHandleIsShownWhateverTheCall) {
    const auto calls = sessionCalls();
    { const Session first; } // from which on the library knows where its texts are
    MessageBoxes boxes;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(calls[i](nullptr), ZENT_ERR_SESSION);
        const std::vector<MessageBox> shown = boxes.take();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].title, "Tarvo job ticket");
        EXPECT_THAT(shown[0].text, StartsWith("The job ticket library ran into an error"));
        EXPECT_EQ(errorIn(shown[0]), "025:000");
    }
    EXPECT_EQ(calls[0](readOnly<ZentSessionType>()), ZENT_ERR_SESSION);
    EXPECT_EQ(calls[1](unmapped<ZentSessionType>()), ZENT_ERR_SESSION);
}

TEST(SessionCallsTest, ABadSettingsHandleIsRefused) {
    const Session session;
    const ZentSessionType s = session.handle();
    ZentBool out = 0;
    std::int32_t number = 0;
    std::uint32_t size = 0;
    TarvoJtSettingsType made = nullptr;
    const ZentChar* const name = ZT("copies");
    using Settings = TarvoJtSettingsType;
    MessageBoxes boxes;
    for (const Settings bad : {Settings(), readOnly<Settings>(), unmapped<Settings>()}) {
        Settings variable = bad;
        EXPECT_EQ(fnReleaseTarvoJtSettings(s, &variable), ZENT_ERR_SETTINGS);
        EXPECT_EQ(variable, bad);
        const ZentResult results[] = {
            fnIsEmpty(s, bad, &out),
            fnIsSpecified(s, bad, name, &out),
            fnGetNumberOfValues(s, bad, name, &size),
            fnGetStringValue(s, bad, name, nullptr, &size, 0, &out),
            fnGetNumberValue(s, bad, name, &number, 0, &out),
            fnGetRangeValues(s, bad, name, &number, &number, 0, &out),
            fnGetResolutionValue(s, bad, name, &number, &number, &number, 0, &out),
            fnGetStockSizeValues(s, bad, &number, &number, &out),
            fnUnspecifyFeature(s, bad, name),
            fnUnspecifyAllFeatures(s, bad),
            fnSetStringValue(s, bad, name, name, 0),
            fnSetNumberValue(s, bad, name, 1, 0),
            fnSetRangeValues(s, bad, name, 1, 2, 0),
            fnSetResolutionValue(s, bad, name, 1, 2, 3, 0),
            fnSetStockSizeValues(s, bad, 1, 2),
            fnCreateTarvoJtSettingsFromPageLevelFeature(s, bad, name, 0, &made),
            fnSetPageLevelFeatureFromTarvoJtSettings(s, bad, name, 0, session.ticket()),
            fnSetPageLevelFeatureFromTarvoJtSettings(s, session.ticket(), name, 0, bad),
            fnRemovePageLevelFeatureFromTarvoJtSettings(s, bad, name, 0),
        };
        EXPECT_THAT(results, testing::Each(static_cast<ZentResult>(ZENT_ERR_SETTINGS)));
    }
    EXPECT_TRUE(boxes.take().empty());
}

TEST(SessionCallsTest, NullOutArgumentsAreAnUnknownFailure) {
    const Session session;
    const ZentSessionType s = session.handle();
    const TarvoJtSettingsType t = session.ticket();
    ZentBool out = 0;
    std::int32_t n = 0;
    std::uint32_t size = 0;
    const ZentChar* const name = ZT("copies");
    const Session loud(false);
    MessageBoxes boxes;
    const ZentResult results[] = {
        fnOpenSession(27, 1, 1, 1, 1, nullptr, 0, nullptr),
        fnGetTarvoJtSettingsFromSession(s, nullptr),
        fnCreateNewTarvoJtSettings(s, nullptr),
        fnReleaseTarvoJtSettings(s, nullptr),
        fnIsEmpty(s, t, nullptr),
        fnIsSpecified(s, t, name, nullptr),
        fnGetNumberOfValues(s, t, name, nullptr),
        fnGetStringValue(s, t, name, nullptr, nullptr, 0, &out),
        fnGetStringValue(s, t, name, nullptr, &size, 0, nullptr),
        fnGetNumberValue(s, t, name, nullptr, 0, &out),
        fnGetNumberValue(s, t, name, &n, 0, nullptr),
        fnGetRangeValues(s, t, name, nullptr, &n, 0, &out),
        fnGetRangeValues(s, t, name, &n, nullptr, 0, &out),
        fnGetRangeValues(s, t, name, &n, &n, 0, nullptr),
        fnGetResolutionValue(s, t, name, nullptr, &n, &n, 0, &out),
        fnGetResolutionValue(s, t, name, &n, nullptr, &n, 0, &out),
        fnGetResolutionValue(s, t, name, &n, &n, nullptr, 0, &out),
        fnGetResolutionValue(s, t, name, &n, &n, &n, 0, nullptr),
        fnGetStockSizeValues(s, t, nullptr, &n, &out),
        fnGetStockSizeValues(s, t, &n, nullptr, &out),
        fnGetStockSizeValues(s, t, &n, &n, nullptr),
        fnCreateTarvoJtSettingsFromPageLevelFeature(s, t, name, 0, nullptr),
        fnExportJobTicket(s, nullptr, nullptr, 1),
        fnImportJobTicket(s, nullptr, 1, 1, 1, nullptr, nullptr, &out, &out),
    };
    EXPECT_THAT(results, testing::Each(static_cast<ZentResult>(ZENT_ERR_UNKNOWN)));
    EXPECT_TRUE(boxes.take().empty());

    // Here the session isn't known, so it is shown.
    // As nobody agrees to go on, Windows hands the failure to the application.
    const auto endOf = [](const auto& call) {
        try {
            return call();
        } catch (...) {
            return ZentResult{ZENT_ERR_UNKNOWN};
        }
    };
    EXPECT_EQ(endOf([] { return fnCloseSession(nullptr); }), ZENT_ERR_UNKNOWN);
    EXPECT_EQ(endOf([&] { return fnIsEmpty(loud.handle(), loud.ticket(), nullptr); }),
              ZENT_ERR_UNKNOWN);
    const std::vector<MessageBox> shown = boxes.take();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_THAT(shown[0].text, testing::HasSubstr("Choose OK to continue"));
    EXPECT_EQ(shown[1].text, shown[0].text);
}

TEST(SessionCallsTest, FailuresAreShownUnlessSilent) {
    MessageBoxes boxes;
    for (const bool silent : {true, false}) {
        const Session session(silent);
        EXPECT_EQ(session.setNumber("no-such-feature", 1), ZENT_ERR_UNKNOWN_FEATURE);
        const std::vector<MessageBox> shown = boxes.take();
        ASSERT_EQ(shown.size(), silent ? 0U : 1U);
        if (!silent) {
            EXPECT_EQ(shown[0].title, "Tarvo job ticket");
            EXPECT_EQ(errorIn(shown[0]), "012:000");
        }
        // These are no exceptions, so nothing is said.
        ZentBool out = 0;
        EXPECT_EQ(fnImportJobTicket(session.handle(), "", 0, 3, 1, nullptr, nullptr, &out, &out),
                  ZENT_ERR_TICKET_FORMAT);
        std::uint32_t size = 1;
        EXPECT_EQ(fnExportJobTicket(session.handle(), &out, &size, 1), ZENT_ERR_BUFFER_TOO_SMALL);
        EXPECT_TRUE(boxes.take().empty());
    }
}

TEST(SessionCallsTest, SettingsHandlesLiveOnTheirOwn) {
    TarvoJtSettingsType kept = nullptr;
    {
        const Session session;
        TarvoJtSettingsType own = session.ticket();
        EXPECT_EQ(fnReleaseTarvoJtSettings(session.handle(), &own), ZENT_OK);
        EXPECT_EQ(own, session.ticket()); // left alone
        EXPECT_EQ(session.setNumber("copies", 2), ZENT_OK);
        EXPECT_EQ(fnGetTarvoJtSettingsFromSession(session.handle(), &own), ZENT_OK);
        EXPECT_EQ(own, session.ticket());
        kept = session.newSettings();
        EXPECT_EQ(numberOf(session, kept, "copies"), "none");
        fnSetNumberValue(session.handle(), kept, ZT("copies"), 7, 0);
        EXPECT_EQ(numberOf(session, session.ticket(), "copies"), "2");
    }
    const Session other;
    EXPECT_EQ(numberOf(other, kept, "copies"), "7");
    other.release(kept);
}

} // namespace
} // namespace zent::test
