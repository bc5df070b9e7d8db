#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace zent::platform {

std::u16string getWindowText(HWND window);
void setWindowText(HWND window, std::u16string_view text);

} // namespace zent::platform
