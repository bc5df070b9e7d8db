#include "platform/win32/ItemKind.h"

#include <cwchar>

#include <commctrl.h>

namespace zent::platform::win32 {

ItemKind getItemKind(HWND item) {
    struct Row {
        const wchar_t* windowClass;
        ItemKind kind;
    };
    static constexpr Row rows[] = {
        {L"Button", ItemKind::button},      {L"Static", ItemKind::label},
        {L"Edit", ItemKind::edit},          {L"ComboBox", ItemKind::comboBox},
        {L"ListBox", ItemKind::listBox},    {L"ScrollBar", ItemKind::scrollBar},
        {WC_LISTVIEWW, ItemKind::listView}, {TRACKBAR_CLASSW, ItemKind::slider},
        {UPDOWN_CLASSW, ItemKind::spin},
    };
    constexpr int longestName = 32;
    wchar_t name[longestName] = {};
    GetClassNameW(item, name, longestName);
    for (const Row& row : rows) {
        if (_wcsicmp(name, row.windowClass) == 0) { // a template may write them in any case
            return row.kind;
        }
    }
    return ItemKind::other;
}

} // namespace zent::platform::win32
