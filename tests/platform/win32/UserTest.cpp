// The user and the locale, as Windows knows them.

#include "ocore/User/User.h"

#include <windows.h>

#include "platform/win32/WideText.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

/// Sets a text of the user's locale as long as the object lives.
class LocaleText {
public:
    LocaleText(LCTYPE type, const wchar_t* text) : m_type(type) {
        EXPECT_GT(GetLocaleInfoW(LOCALE_USER_DEFAULT, type, m_before, 8), 0);
        EXPECT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, type, text));
    }
    ~LocaleText() { SetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, m_before); }
    LocaleText(const LocaleText&) = delete;
    LocaleText& operator=(const LocaleText&) = delete;

private:
    LCTYPE m_type;
    wchar_t m_before[8] = {};
};

TEST(WindowsUser, IsWhoIsLoggedOn) {
    wchar_t name[257] = {};
    DWORD capacity = 257;
    ASSERT_TRUE(GetUserNameW(name, &capacity));
    EXPECT_EQ(User::getLogonName(), CXString(units(name)));

    wchar_t profile[MAX_PATH] = {};
    ASSERT_GT(GetEnvironmentVariableW(L"USERPROFILE", profile, MAX_PATH), 0U);
    EXPECT_EQ(User::getProfileDirectoryPath(), CXString(units(profile)));
}

TEST(WindowsUser, HasLocale) {
    const Rows<const wchar_t*, const wchar_t*, bool, std::uint32_t> rows{
        {L"0", L"9", false, 8}, {L"1", L"1", true, 2},  {L"1", L"5", true, 3},
        {L"0", L"8", false, 9}, {L"0", L"1", false, 2}, {L"1", L"9", true, 8},
        {L"0", L"3", false, 8}, {L"1", L"3", true, 2},
    };
    for (const auto& [system, sheet, inches, stockSize] : rows) {
        const LocaleText measurement(LOCALE_IMEASURE, system);
        const LocaleText paper(LOCALE_IPAPERSIZE, sheet);
        EXPECT_EQ(User::usesInches(), inches);
        EXPECT_EQ(User::getDefaultStockSize(), stockSize);
    }
}

} // namespace
} // namespace zent::test
