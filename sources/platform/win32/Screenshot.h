#pragma once

#include "ocore/Text/CXString.h"

#include <windows.h>

namespace zent::platform {

/// Writes a window as it looks, with its frame, to a bitmap file; false on failure.
bool saveAsBitmap(HWND window, const CXString& fileName);

} // namespace zent::platform
