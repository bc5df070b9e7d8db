#pragma once

#include <windows.h>

namespace zent::platform {

/// Whether somebody can see the process's windows. A service has a window station of its own, where
/// a dialog would wait for ever.
inline bool isDesktopSeen() {
    USEROBJECTFLAGS flags = {};
    const HWINSTA station = GetProcessWindowStation();
    return GetUserObjectInformationW(station, UOI_FLAGS, &flags, sizeof(flags), nullptr) == FALSE ||
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

} // namespace zent::platform
