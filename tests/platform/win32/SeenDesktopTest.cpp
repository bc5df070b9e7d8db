#include "platform/win32/SeenDesktop.h"

#include "platform/System.h"
#include "platform/WindowSystem.h"
#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(WindowsSeenDesktop, NobodyIsAskedWhereNobodySeesIt) {
    const HWINSTA before = GetProcessWindowStation();
    // As a service has one: only the station of the console is seen.
    const HWINSTA unseen = CreateWindowStationW(nullptr, 0, WINSTA_ALL_ACCESS, nullptr);
    ASSERT_NE(unseen, nullptr);
    ASSERT_NE(SetProcessWindowStation(unseen), FALSE);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(isDesktopSeen());
    EXPECT_EQ(WindowSystem::find(), nullptr);
    EXPECT_EQ(showMessageBox(nullptr, u"body", u"title", MB_OKCANCEL), IDCANCEL);
    EXPECT_EQ(showMessageBox(nullptr, u"body", u"title", MB_OK), IDOK);
    EXPECT_FALSE(testing::internal::GetCapturedStderr().empty());
    EXPECT_NE(SetProcessWindowStation(before), FALSE);
    CloseWindowStation(unseen);
    EXPECT_TRUE(isDesktopSeen());
    EXPECT_NE(WindowSystem::find(), nullptr);
}

} // namespace
} // namespace zent::test
