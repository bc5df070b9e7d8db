#include "ocore/User/UserPreferences.h"

#include "ocore/User/User.h"
#include "support/LibraryTesting.h"

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

TEST_F(UserPreferencesTest, WellKnownOnesRefuseOtherTypesAndOthersTakeAny) {
    EXPECT_EQ(raised<PreferenceDataTypeMismatchException>(
                  [&] { m_preferences.setStringPreference(u"TOOL_BAR_PREFERENCE", u"1"); }),
              "UserPreferences::setStringPreference(TOOL_BAR_PREFERENCE): Called for a well-known "
              "preference that is of a different type (<long>). Call the appropriate method.\r\n");
    EXPECT_THROW(m_preferences.getLongPreference(u"GENERIC_JT_PREFERENCE"),
                 PreferenceDataTypeMismatchException);
    EXPECT_THROW(m_preferences.getDataPreference(u"IMAGE_SHIFT_UNIT_PREFERENCE"),
                 PreferenceDataTypeMismatchException);
    for (const char16_t* name : {u"tool_bar_preference", u""}) { // names compare exactly
        m_preferences.setLongPreference(name, -1);
        EXPECT_FALSE(m_preferences.getBooleanPreference(name)) << "isn't above 0";
        m_preferences.setStringPreference(name, u"gr\u00FC\u00DF");
        EXPECT_EQ(m_preferences.getStringPreference(name), u"gr\u00FC\u00DF");
    }
    UserPreferences(CXString()).setLongPreference(u"free", 3); // the set of all printers
    EXPECT_EQ(m_preferences.getLongPreference(u"free"), 0);
    EXPECT_EQ(m_registry.getLongValue(rootKey, u"free", 0), 3);
}

TEST_F(UserPreferencesTest, BytesAreReadAsWhatIsAskedFor) {
    constexpr std::int32_t tooShort = -1;
    for (const auto& [content, asLong, asString] : Rows<std::string, std::int32_t, CXString>{
             {std::string("\0", 1), tooShort, u""},
             {std::string("x\0\0", 3), tooShort, u"x"},
             {std::string("\0\x01\0\0", 4), 256, u"\u0100"},
             {"abcde", 0x64636261, u"\u6261\u6463"},
             {std::string("o\0k\0\0\0\0\0", 8), 0x6B006F, u"ok"}, // with terminators
             {std::string("o\0\0\0k\0", 6), 0x6F, std::u16string_view(u"o\0k", 3)},
         }) {
        m_registry.setDataValue(m_key, u"n", ByteBuffer(content.data(), content.size()));
        EXPECT_EQ(m_registry.getStringValue(m_key, u"n", u"default"), asString);
        if (asLong != tooShort) {
            EXPECT_EQ(m_registry.getLongValue(m_key, u"n", 0), asLong);
            continue;
        }
        EXPECT_EQ(raised<NotEnoughBytesForDesiredDataTypeException>(
                      [&] { m_registry.getLongValue(m_key, u"n", 0); }),
                  "ByteBuffer::getAsLongValue(): Cannot convert to the desired data type because "
                  "the size of the source buffer is too small (" +
                      std::to_string(content.size()) +
                      " bytes)! It needs to be at least 4 bytes.\r\n");
    }
    m_registry.setDataValue(m_key, u"n", {}); // no number
    EXPECT_EQ(m_registry.getLongValue(m_key, u"n", -5), -5);
    EXPECT_EQ(m_registry.getStringValue(m_key, u"n", u"default"), u"");
}

} // namespace
} // namespace zent::test
