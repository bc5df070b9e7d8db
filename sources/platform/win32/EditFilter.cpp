#include "platform/win32/EditFilter.h"

#include <cwchar>
#include <utility>

#include "platform/InputRule.h"
#include "platform/Surrogates.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

namespace zent::platform::win32 {

namespace {

/// Backspace, Escape, and the Control key with a letter. Enter is a character like others.
bool isControl(char16_t unit) { return unit < u' ' && unit != u'\r' && unit != u'\n'; }

/// The clipboard, open as long as the object lives.
class Clipboard {
public:
    explicit Clipboard(HWND window) : m_isOpen(OpenClipboard(window) != FALSE) {}
    ~Clipboard() {
        if (m_isOpen) {
            CloseClipboard();
        }
    }
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    std::u16string getText() const {
        const HANDLE data = m_isOpen ? GetClipboardData(CF_UNICODETEXT) : nullptr;
        const auto* const text = static_cast<const wchar_t*>(GlobalLock(data));
        if (text == nullptr) {
            return {};
        }
        // Another program has put the text there, perhaps without a terminator.
        const std::size_t length = wcsnlen(text, GlobalSize(data) / sizeof(wchar_t));
        std::u16string result(units(text), length);
        GlobalUnlock(data);
        return result;
    }

private:
    bool m_isOpen;
};

} // namespace

LRESULT EditFilter::process(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CHAR && !isControl(static_cast<char16_t>(wParam))) {
        type(static_cast<char16_t>(wParam), lParam);
        return 0;
    }
    if (message == WM_PASTE && !hasStyle(ES_READONLY)) {
        paste();
        return 0;
    }
    return SubclassedItem::process(message, wParam, lParam);
}

bool EditFilter::hasStyle(LONG style) const {
    return (GetWindowLongW(window(), GWL_STYLE) & style) != 0;
}

/// Takes a unit that was typed. The halves of a surrogate pair come as two messages, and are asked
/// for as one character.
void EditFilter::type(char16_t unit, LPARAM key) {
    const char16_t first = std::exchange(m_highSurrogate, u'\0');
    if (isHighSurrogate(unit)) {
        m_highSurrogate = unit;
        return;
    }
    std::u16string typed(1, unit);
    if (first != u'\0' && isLowSurrogate(unit)) {
        typed.insert(typed.begin(), first);
    }
    if (!accept(typed).empty()) {
        for (const char16_t each : typed) {
            SubclassedItem::process(WM_CHAR, each, key);
        }
    }
}

void EditFilter::paste() const {
    const std::u16string text = accept(Clipboard(window()).getText());
    if (!text.empty()) {
        SendMessageW(window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

/// The part of a text that may replace the selection.
std::u16string EditFilter::accept(std::u16string_view entered) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    const InputRule rule{
        .filter = m_filter,
        .limit = static_cast<std::size_t>(SendMessageW(window(), EM_GETLIMITTEXT, 0, 0)),
        .hasLines = hasStyle(ES_MULTILINE),
        .isNumber = hasStyle(ES_NUMBER)};
    return rule.accept(getWindowText(window()), start, end, entered);
}

} // namespace zent::platform::win32
