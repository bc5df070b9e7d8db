#include "ocore/User/UserPreferences.h"

#include "ocore/User/User.h"
#include "support/LibraryTesting.h"
#include "support/ScratchUser.h"

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

    const ScratchUser m_scratch;
    const UserPreferences m_preferences{u"A printer"};
    const Registry m_registry{};
    const CXString m_key = CXString(rootKey) + u"A printer";
};

TEST_F(UserPreferencesTest, WellKnownOnesHaveDefaultsUntilTheyAreStored) {
    const char* const unit = User::usesInches() ? "1" : "2";
    std::string expected = std::string("100111") + unit + unit + "1";
    EXPECT_EQ(wellKnown(), expected);
    // Each is set to something else, so that none can stand for another.
    std::size_t i = 0;
    for (const char* name : {"JOB_NAME_PREFERENCE", "ACCOUNT_REQUIRED_PREFERENCE",
                             "ACCT_NUMBER_IN_JT_PREFERENCE", "USE_LOGON_NAME_PREFERENCE",
                             "USE_LOGON_NAME_PREFERENCE_RECIPIENT", "GENERIC_JT_PREFERENCE"}) {
        expected[i] = expected[i] == '1' ? '0' : '1';
        m_preferences.setBooleanPreference(CXString(name), expected[i] == '1');
        EXPECT_EQ(wellKnown(), expected);
        EXPECT_EQ(m_registry.getLongValue(m_key, CXString(name), 99), expected[i] - '0');
        ++i;
    }
    m_preferences.setStringPreference(u"PREFERRED_JOB_TICKET", u"a.ord");
    m_preferences.setLongPreference(u"CUSTOM_PAPER_SIZE_PREFERENCE", 7);
    m_preferences.setLongPreference(u"IMAGE_SHIFT_UNIT_PREFERENCE", 8);
    m_preferences.setLongPreference(u"TOOL_BAR_PREFERENCE", 9);
    EXPECT_EQ(wellKnown(), "011000a.ord789");
}

TEST_F(UserPreferencesTest, LeavesOtherNamesFree) {
    // Names compare exactly: this one isn't well-known.
    for (const char16_t* name : {u"tool_bar_preference", u"TOOL_BAR_PREFERENCE ", u""}) {
        EXPECT_FALSE(m_preferences.getBooleanPreference(name));
        EXPECT_EQ(m_preferences.getStringPreference(name), u"");
        EXPECT_TRUE(m_preferences.getDataPreference(name).isEmpty());
        m_preferences.setLongPreference(name, -1);
        EXPECT_EQ(m_preferences.getLongPreference(name), -1);
        EXPECT_FALSE(m_preferences.getBooleanPreference(name)) << "isn't above 0";
        m_preferences.setStringPreference(name, u"gr\u00FC\u00DF");
        EXPECT_EQ(m_preferences.getStringPreference(name), u"gr\u00FC\u00DF");
        m_preferences.setDataPreference(name, ByteBuffer());
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
