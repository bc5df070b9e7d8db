#include "ocore/User/User.h"

#include "platform/UserIdentity.h"
#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

using platform::ProfileStatus;
using platform::UserProfile;

TEST(UserTest, SaysWhyThereIsNoProfileDirectory) {
    const std::string refused = " LastError of 0x1f.\r\n";
    for (const auto& [status, message] : Rows<ProfileStatus, std::string>{
             {ProfileStatus::noFunction, "User::getProfileDirectoryPath(): Failed call to "
                                         "GetProcAddress for the GetUserProfileDirectory()."},
             {ProfileStatus::directoryRefused,
              "User::getProfileDirectoryPath(): Failed call to GetUserProfileDirectory() to fill "
              "in the buffer with token handle of 0xabc."},
             {ProfileStatus::noDirectory, "User::GetUserProfileDirectory(): Failed call to "
                                          "GetWindowsDirectory() to fill in the buffer."},
         }) {
        const UserProfile profile = {.status = status, .error = 0x1F, .token = 0xABC};
        EXPECT_EQ(raised<UserInformationRequestException>(
                      [&] { User::getProfileDirectoryPath(profile); }),
                  message + refused);
    }
    const UserProfile profile = {.status = ProfileStatus::tokenRefused, .error = 5, .access = 8};
    EXPECT_EQ(raised<ProcessTokenRequestException>([&] { User::getProfileDirectoryPath(profile); }),
              "WindowsProcessToken::WindowsProcessToken(): Call to OpenProcessToken(0x8) failed "
              "with LastError of 0x5.\r\n");
}

TEST(UserTest, OnlyTracesWhatWentWrongOnTheWay) {
    const TraceCapture trace;
    EXPECT_EQ(User::getProfileDirectoryPath({.directory = u"/home/a"}), u"/home/a");
    EXPECT_EQ(TraceCapture::text(), "");
    EXPECT_EQ(User::getProfileDirectoryPath({.directory = u"/home/a", .error = 2}), u"/home/a");
    EXPECT_NE(TraceCapture::text(), "");
}

} // namespace
} // namespace zent::test
