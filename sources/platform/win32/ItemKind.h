#pragma once

#include <windows.h>

namespace zent::platform::win32 {

/// What a dialog item is, by its window's class.
enum class ItemKind {
    other,
    button,
    label,
    edit,
    comboBox,
    listBox,
    scrollBar,
    listView,
    slider,
    spin,
};

ItemKind getItemKind(HWND item);

} // namespace zent::platform::win32
