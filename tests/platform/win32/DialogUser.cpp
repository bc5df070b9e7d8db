#include "support/DialogUser.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <set>
#include <string>
#include <utility>

#include <windows.h>

#include <commctrl.h>

namespace zent::test::user {

namespace {

using platform::WindowHandle;

HWND asWindow(WindowHandle handle) { return static_cast<HWND>(handle); }

// ---- Dialogs as they open -----------------------------------------------------------------------

BOOL CALLBACK collectDialog(HWND window, LPARAM result) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (std::wstring_view(name) == L"#32770" && IsWindowVisible(window) != FALSE) {
        reinterpret_cast<std::vector<HWND>*>(result)->push_back(window);
    }
    return TRUE;
}

std::vector<HWND> openDialogs() {
    std::vector<HWND> dialogs; // the one in front first
    EnumThreadWindows(GetCurrentThreadId(), &collectDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

/// What is to be done, and the dialogs that it isn't to be done with.
struct Agenda {
    std::deque<std::function<void(WindowHandle)>> actions;
    std::set<HWND> known;
    UINT_PTR timer = 0;
};
Agenda agenda;

/// Comes when the thread has nothing else to do, in whichever dialog's loop it is.
void CALLBACK lookForDialog(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*now*/) {
    const std::vector<HWND> dialogs = openDialogs();
    std::erase_if(agenda.known, [&dialogs](HWND known) {
        return std::find(dialogs.begin(), dialogs.end(), known) == dialogs.end();
    });
    if (agenda.actions.empty() || dialogs.empty() || !IsWindowEnabled(dialogs.front()) ||
        !agenda.known.insert(dialogs.front()).second) {
        return;
    }
    const auto action = std::move(agenda.actions.front());
    agenda.actions.pop_front();
    if (agenda.actions.empty()) {
        KillTimer(nullptr, std::exchange(agenda.timer, 0));
    }
    action(dialogs.front());
}

/// Serves what is waiting, as the dialog's own loop would.
void serveMessages(HWND dialog) {
    MSG message = {};
    while (IsWindow(dialog) != FALSE && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (IsDialogMessageW(dialog, &message) == FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

// ---- Keys ---------------------------------------------------------------------------------------

void hold(int key, bool isDown) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[key] = isDown ? 0x80 : 0;
    SetKeyboardState(keys);
}

void pressKey(HWND dialog, WPARAM key) {
    const HWND focus = GetFocus();
    const HWND target = focus != nullptr ? focus : dialog;
    PostMessageW(target, WM_KEYDOWN, key, 1);
    PostMessageW(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    serveMessages(dialog);
}

WPARAM virtualKey(Key key) {
    switch (key) {
    case Key::tab:
    case Key::shiftTab:
        return VK_TAB;
    case Key::enter:
        return VK_RETURN;
    case Key::escape:
        return VK_ESCAPE;
    case Key::backspace:
        return VK_BACK;
    case Key::remove:
        return VK_DELETE;
    case Key::up:
        return VK_UP;
    case Key::down:
        return VK_DOWN;
    case Key::space:
        return VK_SPACE;
    }
    return 0;
}

// ---- Items --------------------------------------------------------------------------------------

bool isOfClass(HWND window, const wchar_t* name) {
    wchar_t className[32] = {};
    GetClassNameW(window, className, 32);
    return _wcsicmp(className, name) == 0;
}

/// An item that can be seen and used; null otherwise.
HWND findUsable(WindowHandle dialog, std::uint16_t item) {
    const HWND window = GetDlgItem(asWindow(dialog), item);
    return window != nullptr && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE
               ? window
               : nullptr;
}

/// The part of an item that takes text, with the focus.
HWND enterText(WindowHandle dialog, std::uint16_t item) {
    const HWND window = findUsable(dialog, item);
    const HWND part = window != nullptr && isOfClass(window, L"ComboBox")
                          ? FindWindowExW(window, nullptr, L"Edit", nullptr)
                          : window;
    // A combo box selects its whole text with what is chosen.
    if (part != nullptr && (part != window || GetFocus() != part)) {
        SetFocus(part);
        const auto end = static_cast<WPARAM>(GetWindowTextLengthW(part));
        SendMessageW(part, EM_SETSEL, end, static_cast<LPARAM>(end));
    }
    return part;
}

void clickAt(HWND dialog, HWND window, POINT place) {
    const LPARAM point = MAKELPARAM(place.x, place.y);
    // Some windows wait for the end of the click before they return.
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(window, WM_LBUTTONUP, 0, point);
    serveMessages(dialog);
}

POINT middleOf(const RECT& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void putOnClipboard(HWND owner, std::u16string_view text) {
    const std::size_t size = text.size() * sizeof(char16_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size + sizeof(char16_t));
    std::memcpy(GlobalLock(memory), text.data(), size);
    GlobalUnlock(memory);
    OpenClipboard(owner);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory); // the system's from here on
    CloseClipboard();
}

} // namespace

void onceOpen(std::function<void(WindowHandle dialog)> action) {
    constexpr UINT interval = 10; // milliseconds
    if (agenda.actions.empty()) {
        const std::vector<HWND> dialogs = openDialogs();
        agenda.known = {dialogs.begin(), dialogs.end()};
        agenda.timer = SetTimer(nullptr, 0, interval, &lookForDialog);
    }
    agenda.actions.push_back(std::move(action));
}

std::uint16_t focused(WindowHandle dialog) {
    HWND window = GetFocus();
    if (window == nullptr || IsChild(asWindow(dialog), window) == FALSE) {
        return 0;
    }
    while (GetParent(window) != asWindow(dialog)) {
        window = GetParent(window); // the edit part of a combo box
    }
    return static_cast<std::uint16_t>(GetDlgCtrlID(window));
}

void press(WindowHandle dialog, Key key) {
    const bool isShifted = key == Key::shiftTab;
    if (isShifted) {
        hold(VK_SHIFT, true);
    }
    pressKey(asWindow(dialog), virtualKey(key));
    if (isShifted) {
        hold(VK_SHIFT, false);
    }
}

void type(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    const HWND edit = enterText(dialog, item);
    for (const char16_t character : text) {
        SendMessageW(edit, WM_CHAR, character, 1);
    }
}

void paste(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    constexpr WPARAM controlV = 'V' - '@';
    const HWND edit = enterText(dialog, item);
    if (edit != nullptr) {
        putOnClipboard(edit, text);
        SendMessageW(edit, WM_CHAR, controlV, 1);
    }
}

void click(WindowHandle dialog, std::uint16_t item) {
    const HWND window = findUsable(dialog, item);
    if (window != nullptr) {
        RECT rect = {};
        GetClientRect(window, &rect);
        clickAt(asWindow(dialog), window, middleOf(rect));
    }
}

namespace {

/// What the mouse does at a place in an item, to the window that the system finds there.
void useMouse(WindowHandle dialog, std::uint16_t item, UINT message, POINT place) {
    const HWND window = findUsable(dialog, item);
    ClientToScreen(window, &place);
    const HWND target = WindowFromPoint(place);
    ScreenToClient(target, &place);
    if (window != nullptr) {
        PostMessageW(target, message, 0, MAKELPARAM(place.x, place.y));
        serveMessages(asWindow(dialog));
    }
}

} // namespace

void moveMouse(WindowHandle dialog, std::uint16_t item, int x, int y) {
    useMouse(dialog, item, WM_MOUSEMOVE, {x, y});
}

void pressMouse(WindowHandle dialog, std::uint16_t item, int x, int y) {
    useMouse(dialog, item, WM_LBUTTONDOWN, {x, y});
}

/// By the keyboard, from the start of the list.
void choose(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
    const HWND window = findUsable(dialog, item);
    if (window == nullptr) {
        return;
    }
    const bool isCombo = isOfClass(window, L"ComboBox");
    SetFocus(window);
    const auto selected = [window, isCombo] {
        return static_cast<std::int32_t>(
            SendMessageW(window, isCombo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0));
    };
    for (std::int32_t before = -2; selected() != index && selected() != before;) {
        before = selected();
        pressKey(asWindow(dialog), before < index ? VK_DOWN : VK_UP);
    }
}

bool seesRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    const HWND window = findUsable(dialog, item);
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
    RECT view = {};
    GetClientRect(window, &view);
    const HWND header = reinterpret_cast<HWND>(SendMessageW(window, LVM_GETHEADER, 0, 0));
    RECT top = {};
    if (header != nullptr && IsWindowVisible(header) != FALSE) {
        GetClientRect(header, &top);
    }
    return place.top >= top.bottom && place.bottom <= view.bottom && place.bottom > place.top;
}

void clickRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    const HWND window = findUsable(dialog, item);
    if (window == nullptr) {
        return;
    }
    RECT rect = {LVIR_LABEL, 0, 0, 0};
    SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&rect));
    clickAt(asWindow(dialog), window, middleOf(rect));
}

/// The mark stands before a row's icon and text.
void checkRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    const HWND window = findUsable(dialog, item);
    if (window == nullptr) {
        return;
    }
    RECT rect = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&rect));
    LVHITTESTINFO hit = {};
    for (hit.pt = {rect.left, (rect.top + rect.bottom) / 2}; hit.pt.x < rect.right; ++hit.pt.x) {
        SendMessageW(window, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.flags == LVHT_ONITEMSTATEICON) {
            clickAt(asWindow(dialog), window, {hit.pt.x + 4, hit.pt.y});
            return;
        }
    }
}

void moveSlider(WindowHandle dialog, std::uint16_t item, std::int32_t position) {
    const HWND window = findUsable(dialog, item);
    if (window == nullptr) {
        return;
    }
    SetFocus(window);
    const auto current = [window] {
        return static_cast<std::int32_t>(SendMessageW(window, TBM_GETPOS, 0, 0));
    };
    std::int32_t before = current() - 1;
    while (current() != position && current() != before) {
        before = current();
        pressKey(asWindow(dialog), before < position ? VK_RIGHT : VK_LEFT);
    }
}

void spin(WindowHandle dialog, std::uint16_t item, bool up) {
    const HWND window = findUsable(dialog, item);
    if (window == nullptr) {
        return;
    }
    RECT rect = {};
    GetClientRect(window, &rect);
    const bool isAcross = (GetWindowLongW(window, GWL_STYLE) & UDS_HORZ) != 0;
    const LONG part = up ? 1 : 3; // quarters of the way down
    clickAt(asWindow(dialog), window,
            isAcross ? POINT{rect.right * (4 - part) / 4, rect.bottom / 2}
                     : POINT{rect.right / 2, rect.bottom * part / 4});
}

void close(WindowHandle dialog) {
    PostMessageW(asWindow(dialog), WM_SYSCOMMAND, SC_CLOSE, 0);
    serveMessages(asWindow(dialog));
}

} // namespace zent::test::user
