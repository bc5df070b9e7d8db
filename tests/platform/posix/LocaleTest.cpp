#include "platform/Locale.h"

#include <clocale>
#include <filesystem>
#include <fstream>

#include "ocore/User/User.h"
#include "platform/posix/Environment.h"
#include "support/LibraryTesting.h"
#include "support/TemporaryFolder.h"

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
    const struct {
        const char16_t* measurementText;
        const char16_t* paperText;
        std::uint32_t width;
        std::uint32_t height;
        std::uint32_t stockSize;
        char measurement;
        bool usesInches;
    } rows[] = {
        {u"0", u"9", 210, 297, a4, 1, false},     {u"0", u"8", 297, 420, a3, 1, false},
        {u"1", u"1", 216, 279, letter, 2, true},  {u"1", u"5", 216, 356, legal, 2, true},
        {u"0", u"1", 216, 279, letter, 1, false}, {u"1", u"9", 210, 297, a4, 2, true},
        {u"0", u"", 297, 210, a4, 1, false},      {u"1", u"", 148, 210, letter, 2, true},
        {u"", u"", 0, 0, letter, 3, true},
    };
    int number = 0;
    for (const auto& row : rows) {
        // Each under a name of its own, since the C library keeps what it has read.
        const std::string name = "zz_" + std::to_string(++number);
        makeLocale(name, row.measurement, row.width, row.height);
        const std::string before = setlocale(LC_ALL, nullptr);
        const Environment measurement("LC_MEASUREMENT", name);
        const Environment paper("LC_PAPER", name);
        EXPECT_EQ(getLocaleMeasurement(), row.measurementText) << name;
        EXPECT_EQ(getLocalePaperSize(), row.paperText) << name;
        EXPECT_EQ(User::usesInches(), row.usesInches) << name;
        EXPECT_EQ(User::getDefaultStockSize(), row.stockSize) << name;
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

} // namespace
} // namespace zent::test
