#pragma once

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "support/DialogUser.h"

namespace zent::test {

/// Keeps the look of a dialog, for people, in the build's folder of screenshots.
inline void keepScreenshot(platform::WindowHandle dialog, const std::string& name) {
    const char* const folder = std::getenv("ZENT_SCREENSHOTS");
    if (folder != nullptr) {
        EXPECT_TRUE(user::saveScreenshot(dialog, folder + name + ZENT_SCREENSHOT_SUFFIX)) << name;
    }
}

} // namespace zent::test
