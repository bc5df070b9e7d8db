#include "platform/win32/WindowText.h"

#include "platform/win32/WideText.h"

namespace zent::platform {

std::u16string getWindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::u16string text(static_cast<std::size_t>(length), u'\0');
    // The length is an upper bound; the terminator has room after the text.
    const int copied = GetWindowTextW(window, wide(text.data()), length + 1);
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

void setWindowText(HWND window, std::u16string_view text) {
    SetWindowTextW(window, wide(std::u16string(text).c_str()));
}

} // namespace zent::platform
