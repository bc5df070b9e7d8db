#include "ocore/UserPreferences.h"

#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/User.h"
#include "support/Raised.h"
#include "support/Rows.h"
#include "support/ScratchPreferences.h"

namespace zent::test {
namespace {

constexpr const char16_t* rootKey = u"SOFTWARE\\Tarvo\\Tarvo Production Printing Services\\";

class UserPreferencesTest : public testing::Test {
protected:
    /// What the well-known preferences say, in the order of their table.
    std::string wellKnown() const {
        const UserPreferences& p = m_preferences;
        std::string text;
        for (const bool flag :
             {p.getJobNamePreference(), p.getAccountRequiredPreference(),
              p.getAccountNumberInTicketPreference(), p.getUseLogonNamePreference(),
              p.getUseLogonNameForRecipientPreference(), p.getGenericTicketPreference()}) {
            text += flag ? '1' : '0';
        }
        return text + p.getPreferredTicketPreference().toNarrow() +
               std::to_string(p.getCustomPaperSizeUnitPreference()) +
               std::to_string(p.getImageShiftUnitPreference()) +
               std::to_string(p.getToolBarPreference());
    }

    const ScratchPreferences m_scratch;
    const UserPreferences m_preferences{u"A printer"};
    const Registry m_registry{};
    const CXString m_key = CXString(rootKey) + u"A printer";
};

TEST_F(UserPreferencesTest, WellKnownOnesHaveDefaultsUntilTheyAreStored) {
    const Rows<const char16_t*, std::uint32_t, const char16_t*, std::string> rows{
        {u"JOB_NAME_PREFERENCE", 1, u"<bool>", "\x01"},
        {u"ACCOUNT_REQUIRED_PREFERENCE", 1, u"<bool>", std::string(1, '\0')},
        {u"ACCT_NUMBER_IN_JT_PREFERENCE", 1, u"<bool>", std::string(1, '\0')},
        {u"USE_LOGON_NAME_PREFERENCE", 1, u"<bool>", "\x01"},
        {u"USE_LOGON_NAME_PREFERENCE_RECIPIENT", 1, u"<bool>", "\x01"},
        {u"GENERIC_JT_PREFERENCE", 1, u"<bool>", "\x01"},
        {u"PREFERRED_JOB_TICKET", 3, u"<string>", ""},
        {u"CUSTOM_PAPER_SIZE_PREFERENCE", 4, u"<unit of measure>", std::string("\x01\0\0\0", 4)},
        {u"IMAGE_SHIFT_UNIT_PREFERENCE", 4, u"<unit of measure>", std::string("\x01\0\0\0", 4)},
        {u"TOOL_BAR_PREFERENCE", 2, u"<long>", std::string("\x01\0\0\0", 4)},
    };
    const auto& table = m_preferences.getWellKnownPreferences();
    ASSERT_EQ(table.size(), rows.size());
    const char* const unit = User::usesInches() ? "1" : "2";
    std::string expected = std::string("100111") + unit + unit + "1";
    EXPECT_EQ(wellKnown(), expected);
    std::size_t i = 0;
    for (const auto& [name, type, typeText, value] : rows) {
        EXPECT_EQ(table[i].name, name);
        EXPECT_EQ(table[i].dataType, type);
        EXPECT_EQ(table[i].getDataTypeText(), CXString(typeText));
        EXPECT_EQ(table[i].value, ByteBuffer(value.data(), value.size()));
        // Each is set to something else, so that none can stand for another.
        if (type == 1) {
            expected[i] = expected[i] == '1' ? '0' : '1';
            m_preferences.setBooleanPreference(name, expected[i] == '1');
            EXPECT_EQ(m_registry.getLongValue(m_key, name, 99), expected[i] - '0');
        } else if (type == 3) {
            m_preferences.setStringPreference(name, u"a.ord");
            expected.insert(6, "a.ord");
        } else {
            m_preferences.setLongPreference(name, static_cast<std::int32_t>(i));
            expected[i + 4] = static_cast<char>('0' + i);
        }
        EXPECT_EQ(wellKnown(), expected);
        ++i;
    }
    const bool yes = true;
    const std::int32_t five = 5;
    const CXString text(u"default");
    EXPECT_FALSE(m_preferences.getBooleanPreference(u"JOB_NAME_PREFERENCE", &yes));
    EXPECT_EQ(m_preferences.getLongPreference(u"TOOL_BAR_PREFERENCE", &five), 9);
    EXPECT_EQ(m_preferences.getStringPreference(u"PREFERRED_JOB_TICKET", &text), u"a.ord");
}

TEST_F(UserPreferencesTest, TakesTheCallersDefaultFirst) {
    const bool no = false;
    const std::int32_t five = 5;
    const CXString text(u"default");
    const ByteBuffer data("\0d", 2);
    EXPECT_FALSE(m_preferences.getBooleanPreference(u"JOB_NAME_PREFERENCE", &no));
    EXPECT_EQ(m_preferences.getLongPreference(u"IMAGE_SHIFT_UNIT_PREFERENCE", &five), 5);
    EXPECT_EQ(m_preferences.getStringPreference(u"PREFERRED_JOB_TICKET", &text), u"default");
    EXPECT_EQ(m_preferences.getDataPreference(u"free", &data), data);
    EXPECT_FALSE(m_preferences.getBooleanPreference(u"free"));
    EXPECT_EQ(m_preferences.getLongPreference(u"free"), 0);
    EXPECT_EQ(m_preferences.getStringPreference(u"free"), u"");
    EXPECT_TRUE(m_preferences.getDataPreference(u"free").isEmpty());
}

TEST_F(UserPreferencesTest, LeavesOtherNamesFree) {
    const bool yes = true;
    // Names compare exactly: this one isn't well-known.
    for (const char16_t* name : {u"tool_bar_preference", u"TOOL_BAR_PREFERENCE ", u""}) {
        m_preferences.setBooleanPreference(name, true);
        EXPECT_TRUE(m_preferences.getBooleanPreference(name));
        m_preferences.setLongPreference(name, -1);
        EXPECT_FALSE(m_preferences.getBooleanPreference(name, &yes)) << "isn't above 0";
        m_preferences.setStringPreference(name, u"gr\u00FC\u00DF");
        EXPECT_EQ(m_preferences.getStringPreference(name), u"gr\u00FC\u00DF");
        m_preferences.setDataPreference(name, ByteBuffer("x", 1));
        EXPECT_EQ(m_preferences.getDataPreference(name), ByteBuffer("x", 1));
        EXPECT_THROW(m_preferences.getBooleanPreference(name),
                     NotEnoughBytesForDesiredDataTypeException);
    }
}

TEST_F(UserPreferencesTest, RefusesOtherTypes) {
    using P = const UserPreferences&;
    using N = const CXString&;
    const Rows<const char*, void (*)(P, N), std::string> methods{
        // The last is the types that fit.
        {"getBooleanPreference", [](P p, N n) { p.getBooleanPreference(n); }, "b"},
        {"getLongPreference", [](P p, N n) { p.getLongPreference(n); }, "lu"},
        {"getStringPreference", [](P p, N n) { p.getStringPreference(n); }, "s"},
        {"getDataPreference", [](P p, N n) { p.getDataPreference(n); }, ""},
        {"setBooleanPreference", [](P p, N n) { p.setBooleanPreference(n, true); }, "b"},
        {"setLongPreference", [](P p, N n) { p.setLongPreference(n, 1); }, "lu"},
        {"setStringPreference", [](P p, N n) { p.setStringPreference(n, u"1"); }, "s"},
        {"setDataPreference", [](P p, N n) { p.setDataPreference(n, {}); }, ""},
    };
    const Rows<const char*, const char*> names{
        {"<bool>", "GENERIC_JT_PREFERENCE"},
        {"<long>", "TOOL_BAR_PREFERENCE"},
        {"<string>", "PREFERRED_JOB_TICKET"},
        {"<unit of measure>", "IMAGE_SHIFT_UNIT_PREFERENCE"},
    };
    for (const auto& method : methods) {
        for (const auto& [type, name] : names) {
            const std::string message = raised<PreferenceDataTypeMismatchException>(
                [&, key = CXString(name)] { std::get<1>(method)(m_preferences, key); });
            const bool fits = std::get<2>(method).find(type[1]) != std::string::npos;
            EXPECT_EQ(message, fits ? "nothing was raised"
                                    : std::string("UserPreferences::") + std::get<0>(method) + '(' +
                                          name +
                                          "): Called for a well-known preference that is of a "
                                          "different type (" +
                                          type + "). Call the appropriate method.\r\n");
        }
    }
}

TEST_F(UserPreferencesTest, KeepsSetsApart) {
    const UserPreferences all{CXString()};
    m_preferences.setLongPreference(u"free", 1);
    all.setLongPreference(u"free", 3);
    EXPECT_EQ(UserPreferences(m_preferences).getLongPreference(u"free"), 1);
    EXPECT_EQ(m_registry.getLongValue(rootKey, u"free", 0), 3);
    EXPECT_EQ(m_registry.getLongValue(m_key, u"free", 0), 1);
}

} // namespace
} // namespace zent::test
