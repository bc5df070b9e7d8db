#pragma once

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent::test {

/// The dialog of a window, and its items.
inline platform::Dialog& dialogOf(platform::WindowHandle window) {
    return windowSystem().getDialog(window);
}
template <typename Kind = platform::DialogItem>
Kind& at(platform::WindowHandle dialog, std::uint16_t id) {
    return dialogOf(dialog).item<Kind>(id);
}

} // namespace zent::test
