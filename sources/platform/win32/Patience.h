#pragma once

#include <windows.h>

namespace zent::platform {

/// How long to wait for a file, in milliseconds: for one that others have open, and for one that
/// they are about to remove or replace. To the latter the system denies access, as it does to a
/// file that the user has no right to.
struct Patience {
    DWORD whileOpen;
    DWORD whileDenied;
};

/// Tries a step until it succeeds, fails for another reason, or the patience is at its end. The
/// last error is that of the last try.
template <typename Step>
void whileOthersUseIt(Patience patience, const Step& step) {
    constexpr DWORD pause = 5;
    for (DWORD waited = 0; !step(); waited += pause) {
        const DWORD error = GetLastError();
        const bool mayBeFreeLater =
            (error == ERROR_SHARING_VIOLATION && waited < patience.whileOpen) ||
            (error == ERROR_ACCESS_DENIED && waited < patience.whileDenied);
        if (!mayBeFreeLater) {
            return;
        }
        Sleep(pause);
    }
}

} // namespace zent::platform
