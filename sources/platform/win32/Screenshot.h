#pragma once

#include "ocore/Text/CXString.h"

#include <windows.h>

namespace zent::platform::win32 {

/// Writes a window as it looks, with its frame, to a bitmap file; false on failure.
bool saveAsBitmap(HWND window, const CXString& fileName);

} // namespace zent::platform::win32
