#include "platform/UserIdentity.h"

#include <filesystem>

#include <pwd.h>
#include <unistd.h>

#include "ocore/User/User.h"
#include "platform/posix/Environment.h"
#include "platform/posix/UserFolders.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

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
    const struct {
        const char* home;
        const char* configuration;
        const char* folder;
    } rows[] = {
        {"/home/gr\xC3\xBC\xC3\x9F", nullptr, "/home/gr\xC3\xBC\xC3\x9F/.config"},
        {"/home/a", "", "/home/a/.config"},
        {"/home/a", "relative/path", "/home/a/.config"},
        {"/home/a", "/elsewhere", "/elsewhere"},
        {nullptr, "/elsewhere", "/elsewhere"},
    };
    for (const auto& row : rows) {
        const auto value = [](const char* text) {
            return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
        };
        const Environment home("HOME", value(row.home));
        const Environment configuration("XDG_CONFIG_HOME", value(row.configuration));
        EXPECT_EQ(getConfigFolder(), row.folder);
        if (row.home != nullptr) {
            EXPECT_EQ(User::getProfileDirectoryPath(), CXString(row.home));
        }
    }
}

} // namespace
} // namespace zent::test
