#include "platform/win32/EditFilter.h"

#include <cwchar>

#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

namespace zent::platform {

namespace {

bool isLineEnd(char16_t character) { return character == u'\r' || character == u'\n'; }

/// Backspace, Escape, and the Control key with a letter. Enter is a character like others.
bool isControl(char16_t character) { return character < u' ' && !isLineEnd(character); }

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
        // Another program put it there, perhaps without a terminator.
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
    if (message == WM_CHAR && !acceptsTyped(static_cast<char16_t>(wParam))) {
        return 0;
    }
    if (message == WM_PASTE && !hasStyle(ES_READONLY)) {
        paste();
        return 0;
    }
    return SubclassedItem::process(message, wParam, lParam);
}

EditFilter::Selection EditFilter::getSelection() const {
    Selection selection;
    SendMessageW(window(), EM_GETSEL, reinterpret_cast<WPARAM>(&selection.start),
                 reinterpret_cast<LPARAM>(&selection.end));
    return selection;
}

bool EditFilter::hasStyle(LONG style) const {
    return (GetWindowLongW(window(), GWL_STYLE) & style) != 0;
}

bool EditFilter::accepts(std::u16string_view text, Selection selection, char16_t character) const {
    return m_filter(text, static_cast<std::int32_t>(selection.start),
                    static_cast<std::int32_t>(selection.end), character);
}

bool EditFilter::acceptsTyped(char16_t character) const {
    return isControl(character) || accepts(getWindowText(window()), getSelection(), character);
}

void EditFilter::paste() const {
    const std::u16string text = pick(Clipboard(window()).getText());
    if (!text.empty()) {
        SendMessageW(window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

/// What of a text would come in if it were typed, one character after the other.
std::u16string EditFilter::pick(std::u16string_view pasted) const {
    const bool hasLines = hasStyle(ES_MULTILINE);
    const auto limit = static_cast<std::size_t>(SendMessageW(window(), EM_GETLIMITTEXT, 0, 0));
    Selection selection = getSelection();
    std::u16string text = getWindowText(window());
    std::u16string picked;
    for (const char16_t character : pasted) {
        if (isLineEnd(character) && !hasLines) {
            break; // as the item itself does
        }
        // A line ends with CR LF there, and with Enter here.
        if (character == u'\n' || isControl(character) || !accepts(text, selection, character)) {
            continue;
        }
        const std::u16string_view taken =
            character == u'\r' ? u"\r\n" : std::u16string_view(&character, 1);
        const std::size_t replaced = selection.end - selection.start;
        if (text.size() - replaced + taken.size() > limit) {
            break;
        }
        text.replace(selection.start, replaced, taken);
        selection.start += static_cast<DWORD>(taken.size());
        selection.end = selection.start;
        picked += taken;
    }
    return picked;
}

} // namespace zent::platform
