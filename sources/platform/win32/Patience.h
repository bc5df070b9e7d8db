#pragma once

#include <windows.h>

namespace zent::platform {

/// Tries a step until it succeeds or fails for another reason than that the file is in somebody's
/// hands: whoever reads or replaces it is done soon. The longest wait is in milliseconds. The last
/// error is that of the last try.
template <typename Step>
void whileOthersUseIt(DWORD longestWait, const Step& step) {
    constexpr DWORD pause = 5;
    for (DWORD waited = 0; !step(); waited += pause) {
        const DWORD error = GetLastError();
        const bool mayBeFreeLater =
            error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!mayBeFreeLater || waited >= longestWait) {
            return;
        }
        Sleep(pause);
        SetLastError(error);
    }
}

} // namespace zent::platform
