#include "ocore/UserPreferences.h"

#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Exceptions.h"
#include "ocore/User.h"
#include "support/Raised.h"
#include "support/ScratchPreferences.h"

namespace zent {
namespace {

constexpr const char16_t* rootKey = u"SOFTWARE\\Tarvo\\Tarvo Production Printing Services\\";

class UserPreferencesTest : public testing::Test {
protected:
    const test::ScratchPreferences m_scratch;
    const UserPreferences m_preferences{u"A printer"};
    const Registry m_registry{};
    const CXString m_key = CXString(rootKey) + u"A printer";
};

TEST_F(UserPreferencesTest, HasDefaults) {
    const ByteBuffer yes("\x01", 1);
    const ByteBuffer no("\0", 1);
    const ByteBuffer one("\x01\0\0\0", 4);
    const struct {
        const char16_t* name = nullptr;
        std::uint32_t type = 0;
        const char16_t* typeText = nullptr;
        ByteBuffer value;
    } rows[] = {
        {u"JOB_NAME_PREFERENCE", 1, u"<bool>", yes},
        {u"ACCOUNT_REQUIRED_PREFERENCE", 1, u"<bool>", no},
        {u"ACCT_NUMBER_IN_JT_PREFERENCE", 1, u"<bool>", no},
        {u"USE_LOGON_NAME_PREFERENCE", 1, u"<bool>", yes},
        {u"USE_LOGON_NAME_PREFERENCE_RECIPIENT", 1, u"<bool>", yes},
        {u"GENERIC_JT_PREFERENCE", 1, u"<bool>", yes},
        {u"PREFERRED_JOB_TICKET", 3, u"<string>", {}},
        {u"CUSTOM_PAPER_SIZE_PREFERENCE", 4, u"<unit of measure>", one},
        {u"IMAGE_SHIFT_UNIT_PREFERENCE", 4, u"<unit of measure>", one},
        {u"TOOL_BAR_PREFERENCE", 2, u"<long>", one},
    };
    const auto& table = m_preferences.getWellKnownPreferences();
    ASSERT_EQ(table.size(), std::size(rows));
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(table[i].name, rows[i].name);
        EXPECT_EQ(table[i].dataType, rows[i].type);
        EXPECT_EQ(table[i].getDataTypeText(), CXString(rows[i].typeText));
        EXPECT_EQ(table[i].value, rows[i].value);
    }
    const std::int32_t unit = User::usesInches() ? 1 : 2;
    EXPECT_TRUE(m_preferences.getJobNamePreference());
    EXPECT_FALSE(m_preferences.getAccountRequiredPreference());
    EXPECT_FALSE(m_preferences.getAccountNumberInTicketPreference());
    EXPECT_TRUE(m_preferences.getUseLogonNamePreference());
    EXPECT_TRUE(m_preferences.getUseLogonNameForRecipientPreference());
    EXPECT_TRUE(m_preferences.getGenericTicketPreference());
    EXPECT_EQ(m_preferences.getPreferredTicketPreference(), u"");
    EXPECT_EQ(m_preferences.getCustomPaperSizeUnitPreference(), unit);
    EXPECT_EQ(m_preferences.getImageShiftUnitPreference(), unit);
    EXPECT_EQ(m_preferences.getToolBarPreference(), 1);
}

TEST_F(UserPreferencesTest, GivesWhatIsStored) {
    // Each is set to something else than its default, so that none can stand for another.
    const auto expectBool = [this](const char16_t* name, bool value, auto getter) {
        m_preferences.setBooleanPreference(name, value);
        EXPECT_EQ((m_preferences.*getter)(), value) << CXString(name).toNarrow();
        EXPECT_EQ(m_registry.getLongValue(m_key, name, 99), value ? 1 : 0);
    };
    using P = UserPreferences;
    expectBool(u"JOB_NAME_PREFERENCE", false, &P::getJobNamePreference);
    expectBool(u"ACCOUNT_REQUIRED_PREFERENCE", true, &P::getAccountRequiredPreference);
    expectBool(u"ACCT_NUMBER_IN_JT_PREFERENCE", true, &P::getAccountNumberInTicketPreference);
    expectBool(u"USE_LOGON_NAME_PREFERENCE", false, &P::getUseLogonNamePreference);
    expectBool(u"USE_LOGON_NAME_PREFERENCE_RECIPIENT", false,
               &P::getUseLogonNameForRecipientPreference);
    expectBool(u"GENERIC_JT_PREFERENCE", false, &P::getGenericTicketPreference);
    m_preferences.setStringPreference(u"PREFERRED_JOB_TICKET", u"C:\\booklet.ord");
    m_preferences.setLongPreference(u"CUSTOM_PAPER_SIZE_PREFERENCE", 3);
    m_preferences.setLongPreference(u"IMAGE_SHIFT_UNIT_PREFERENCE", 4);
    m_preferences.setLongPreference(u"TOOL_BAR_PREFERENCE", 0);
    EXPECT_EQ(m_preferences.getPreferredTicketPreference(), u"C:\\booklet.ord");
    EXPECT_EQ(m_preferences.getCustomPaperSizeUnitPreference(), 3);
    EXPECT_EQ(m_preferences.getImageShiftUnitPreference(), 4);
    EXPECT_EQ(m_preferences.getToolBarPreference(), 0);

    // What is stored wins over the caller's default too.
    const bool yes = true;
    const std::int32_t five = 5;
    const CXString text(u"default");
    EXPECT_FALSE(m_preferences.getBooleanPreference(u"JOB_NAME_PREFERENCE", &yes));
    EXPECT_EQ(m_preferences.getLongPreference(u"TOOL_BAR_PREFERENCE", &five), 0);
    EXPECT_EQ(m_preferences.getStringPreference(u"PREFERRED_JOB_TICKET", &text),
              u"C:\\booklet.ord");
}

TEST_F(UserPreferencesTest, TakesTheCallersDefaultFirst) {
    const bool no = false;
    const std::int32_t five = 5;
    const CXString text(u"default");
    const ByteBuffer data("\0d", 2);
    EXPECT_FALSE(m_preferences.getBooleanPreference(u"JOB_NAME_PREFERENCE", &no));
    EXPECT_EQ(m_preferences.getLongPreference(u"IMAGE_SHIFT_UNIT_PREFERENCE", &five), 5);
    EXPECT_EQ(m_preferences.getLongPreference(u"TOOL_BAR_PREFERENCE", &five), 5);
    EXPECT_EQ(m_preferences.getStringPreference(u"PREFERRED_JOB_TICKET", &text), u"default");
    EXPECT_EQ(m_preferences.getDataPreference(u"free", &data), data);

    EXPECT_FALSE(m_preferences.getBooleanPreference(u"free"));
    EXPECT_EQ(m_preferences.getLongPreference(u"free"), 0);
    EXPECT_EQ(m_preferences.getStringPreference(u"free"), u"");
    EXPECT_TRUE(m_preferences.getDataPreference(u"free").isEmpty());
}

TEST_F(UserPreferencesTest, LeavesOtherNamesFree) {
    const bool yes = true;
    const std::int32_t five = 5;
    // Names compare exactly: this one isn't well-known.
    for (const char16_t* name : {u"free", u"tool_bar_preference", u"TOOL_BAR_PREFERENCE ", u""}) {
        m_preferences.setBooleanPreference(name, true);
        EXPECT_TRUE(m_preferences.getBooleanPreference(name));
        m_preferences.setLongPreference(name, -1);
        EXPECT_EQ(m_preferences.getLongPreference(name), -1);
        EXPECT_FALSE(m_preferences.getBooleanPreference(name, &yes)) << "isn't above 0";
        m_preferences.setStringPreference(name, u"");
        EXPECT_EQ(m_preferences.getLongPreference(name, &five), 5);
        m_preferences.setStringPreference(name, u"gr\u00FC\u00DF");
        EXPECT_EQ(m_preferences.getStringPreference(name), u"gr\u00FC\u00DF");
        m_preferences.setDataPreference(name, ByteBuffer("x", 1));
        EXPECT_EQ(m_preferences.getDataPreference(name), ByteBuffer("x", 1));
        EXPECT_THROW(m_preferences.getLongPreference(name),
                     NotEnoughBytesForDesiredDataTypeException);
        EXPECT_THROW(m_preferences.getBooleanPreference(name),
                     NotEnoughBytesForDesiredDataTypeException);
    }
}

TEST_F(UserPreferencesTest, RefusesOtherTypes) {
    const struct {
        const char* method;
        void (*call)(const UserPreferences& preferences, const CXString& name);
        std::string fits; // of the types below
    } methods[] = {
        {"getBooleanPreference", [](auto& p, auto& n) { p.getBooleanPreference(n); }, "b"},
        {"getLongPreference", [](auto& p, auto& n) { p.getLongPreference(n); }, "lu"},
        {"getStringPreference", [](auto& p, auto& n) { p.getStringPreference(n); }, "s"},
        {"getDataPreference", [](auto& p, auto& n) { p.getDataPreference(n); }, ""},
        {"setBooleanPreference", [](auto& p, auto& n) { p.setBooleanPreference(n, true); }, "b"},
        {"setLongPreference", [](auto& p, auto& n) { p.setLongPreference(n, 1); }, "lu"},
        {"setStringPreference", [](auto& p, auto& n) { p.setStringPreference(n, u"1"); }, "s"},
        {"setDataPreference", [](auto& p, auto& n) { p.setDataPreference(n, {}); }, ""},
    };
    const struct {
        char type;
        const char* text;
        const char* name;
    } names[] = {
        {'b', "<bool>", "GENERIC_JT_PREFERENCE"},
        {'l', "<long>", "TOOL_BAR_PREFERENCE"},
        {'s', "<string>", "PREFERRED_JOB_TICKET"},
        {'u', "<unit of measure>", "IMAGE_SHIFT_UNIT_PREFERENCE"},
    };
    for (const auto& method : methods) {
        for (const auto& row : names) {
            const CXString name(row.name);
            const std::string message = test::raised<PreferenceDataTypeMismatchException>(
                [&] { method.call(m_preferences, name); });
            const bool fits = method.fits.find(row.type) != std::string::npos;
            EXPECT_EQ(message, fits ? "nothing was raised"
                                    : std::string("UserPreferences::") + method.method + '(' +
                                          row.name +
                                          "): Called for a well-known preference that is of a "
                                          "different type (" +
                                          row.text + "). Call the appropriate method.\r\n");
        }
    }
    EXPECT_EQ(PreferenceDataTypeMismatchException(CXString()).getResultCode(), ResultCode{10});
}

TEST_F(UserPreferencesTest, KeepsSetsApart) {
    const UserPreferences other(u"Another printer");
    const UserPreferences all{CXString()};
    m_preferences.setLongPreference(u"free", 1);
    other.setLongPreference(u"free", 2);
    all.setLongPreference(u"free", 3);
    EXPECT_EQ(m_preferences.getLongPreference(u"free"), 1);
    EXPECT_EQ(other.getLongPreference(u"free"), 2);
    EXPECT_EQ(all.getLongPreference(u"free"), 3);
    EXPECT_EQ(UserPreferences(m_preferences).getLongPreference(u"free"), 1);
    EXPECT_EQ(m_registry.getLongValue(rootKey, u"free", 0), 3);
    EXPECT_EQ(m_registry.getLongValue(m_key, u"free", 0), 1);
}

} // namespace
} // namespace zent
