#pragma once

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "ocore/Text/CXString.h"
#include "platform/WindowSystem.h"

namespace zent::test {

/// Keeps the look of a dialog, for people, in the build's folder of screenshots.
inline void keepScreenshot(platform::WindowHandle dialog, const std::string& name) {
    const char* const folder = std::getenv("ZENT_SCREENSHOTS");
    if (folder != nullptr) {
        const CXString file((folder + name + ZENT_SCREENSHOT_SUFFIX).c_str());
        EXPECT_TRUE(platform::WindowSystem::find()->saveScreenshot(dialog, file)) << name;
    }
}

} // namespace zent::test
