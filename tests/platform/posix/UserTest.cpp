// The user and the locale, as POSIX systems know them.

#include <clocale>

#include <pwd.h>
#include <unistd.h>

#include "ocore/User/User.h"
#include "platform/Locale.h"
#include "platform/UserIdentity.h"
#include "platform/posix/Environment.h"
#include "platform/posix/UserFolders.h"
#include "support/LibraryTesting.h"

// The leak checker asks. With LOCPATH set, the C library never frees its copy of the path; other
// leaks of opening a locale count.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" [[gnu::visibility("default")]] const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:__argz_add_sep\n"; }
// NOLINTEND(bugprone-reserved-identifier)

namespace zent::test {
namespace {

using namespace platform;

namespace fs = std::filesystem;

/// A category of a compiled locale, as the C library maps it: a magic number, the number of values,
/// where each value is, and the values.
void writeCategory(const fs::path& path, int category, const std::string& values,
                   std::initializer_list<std::uint32_t> offsets) {
    std::ofstream file(path, std::ios::binary);
    const auto put = [&file](std::uint32_t number) {
        file.write(reinterpret_cast<const char*>(&number), sizeof(number));
    };
    const auto count = static_cast<std::uint32_t>(offsets.size());
    put(0x20031115U ^ static_cast<std::uint32_t>(category));
    put(count);
    for (const std::uint32_t offset : offsets) {
        put(8 + count * 4 + offset);
    }
    file << values;
}

std::string asBytes(std::uint32_t number) {
    return {reinterpret_cast<const char*>(&number), sizeof(number)};
}

class LocaleTest : public testing::Test {
protected:
    const TemporaryFolder m_folder;
    const Environment m_path{"LOCPATH", m_folder.path().string()};
    const Environment m_all{"LC_ALL", std::nullopt};

    void makeLocale(const std::string& name, char measurement, std::uint32_t width,
                    std::uint32_t height) const {
        const fs::path folder = m_folder.path() / name;
        fs::create_directory(folder);
        const std::string codeSet("UTF-8\0", 6);
        writeCategory(folder / "LC_MEASUREMENT", LC_MEASUREMENT,
                      std::string{measurement, '\0'} + codeSet, {0, 2});
        writeCategory(folder / "LC_PAPER", LC_PAPER, asBytes(height) + asBytes(width) + codeSet,
                      {0, 4, 8});
    }
};

TEST_F(LocaleTest, FollowsTheUsersLocale) {
    constexpr std::uint32_t letter = 2;
    constexpr std::uint32_t legal = 3;
    constexpr std::uint32_t a4 = 8;
    constexpr std::uint32_t a3 = 9;
    const Rows<const char16_t*, const char16_t*, std::uint32_t, std::uint32_t, std::uint32_t, char,
               bool>
        rows{
            {u"0", u"9", 210, 297, a4, 1, false},     {u"0", u"8", 297, 420, a3, 1, false},
            {u"1", u"1", 216, 279, letter, 2, true},  {u"1", u"5", 216, 356, legal, 2, true},
            {u"0", u"1", 216, 279, letter, 1, false}, {u"1", u"9", 210, 297, a4, 2, true},
            {u"0", u"", 297, 210, a4, 1, false},      {u"1", u"", 148, 210, letter, 2, true},
            {u"", u"", 0, 0, letter, 3, true},
        };
    int number = 0;
    for (const auto& [measurementText, paperText, width, height, stockSize, system, inches] :
         rows) {
        // Each under a name of its own, since the C library keeps what it has read.
        const std::string name = "zz_" + std::to_string(++number);
        makeLocale(name, system, width, height);
        const std::string before = setlocale(LC_ALL, nullptr);
        const Environment measurement("LC_MEASUREMENT", name);
        const Environment paper("LC_PAPER", name);
        EXPECT_EQ(getLocaleMeasurement(), measurementText) << name;
        EXPECT_EQ(getLocalePaperSize(), paperText) << name;
        EXPECT_EQ(User::usesInches(), inches) << name;
        EXPECT_EQ(User::getDefaultStockSize(), stockSize) << name;
        EXPECT_EQ(setlocale(LC_ALL, nullptr), before);
    }
}

TEST_F(LocaleTest, KnowsNothingOfLocalesThatAreNotInstalled) {
    const Environment measurement("LC_MEASUREMENT", "zz_missing");
    const Environment paper("LC_PAPER", "C");
    EXPECT_EQ(getLocaleMeasurement(), u"");
    EXPECT_EQ(getLocalePaperSize(), u"9") << "each category counts by itself";
    EXPECT_TRUE(User::usesInches());
}

TEST(PosixUserIdentity, ComesFromTheUserDatabase) {
    const passwd* entry = getpwuid(getuid());
    if (entry == nullptr) {
        GTEST_SKIP() << "this user isn't in the user database";
    }
    const Environment name("USER", "somebody else");
    const Environment home("HOME", std::nullopt);
    EXPECT_EQ(User::getLogonName(), CXString(entry->pw_name));
    EXPECT_EQ(User::getProfileDirectoryPath(), CXString(entry->pw_dir));
}

TEST(PosixUserIdentity, FindsFoldersByTheConventions) {
    for (const auto& [home, configuration, folder] : Rows<const char*, const char*, const char*>{
             {"/home/gr\xC3\xBC\xC3\x9F", nullptr, "/home/gr\xC3\xBC\xC3\x9F/.config"},
             {"/home/a", "", "/home/a/.config"},
             {"/home/a", "relative/path", "/home/a/.config"},
             {"/home/a", "/elsewhere", "/elsewhere"},
             {nullptr, "/elsewhere", "/elsewhere"}}) {
        const auto value = [](const char* text) {
            return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
        };
        const Environment ownHome("HOME", value(home));
        const Environment ownConfiguration("XDG_CONFIG_HOME", value(configuration));
        EXPECT_EQ(getConfigFolder(), folder);
        if (home != nullptr) {
            EXPECT_EQ(User::getProfileDirectoryPath(), CXString(home));
        }
    }
}

} // namespace
} // namespace zent::test
