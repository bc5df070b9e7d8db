#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>

#include "platform/WindowSystem.h"
#include "platform/win32/ItemKind.h"

#include <windows.h>

namespace zent::platform::win32 {

class Dialog;

/// An item that an operation of the port is about, with its dialog held while the operation lasts.
/// There is none if the dialog has no item of that id, or one of another kind.
class DialogItem {
public:
    DialogItem(WindowHandle dialog, std::uint16_t id);
    DialogItem(WindowHandle dialog, std::uint16_t id, std::initializer_list<ItemKind> kinds);
    ~DialogItem();
    DialogItem(const DialogItem&) = delete;
    DialogItem& operator=(const DialogItem&) = delete;

    explicit operator bool() const { return m_window != nullptr; }
    HWND window() const { return m_window; }
    ItemKind kind() const { return m_kind; }
    std::uint16_t id() const { return m_id; }
    Dialog& dialog() const { return *m_dialog; }
    bool hasStyle(std::uint32_t style) const;

    /// Sends the item a message without an event that comes of it; 0 if there is no item.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT send(UINT message, WPARAM wParam, const void* lParam) const {
        return send(message, wParam, reinterpret_cast<LPARAM>(lParam));
    }
    /// Moves the keyboard's focus on if the item has it.
    void leave() const;

private:
    std::shared_ptr<Dialog> m_dialog;
    std::uint16_t m_id;
    HWND m_window = nullptr;
    ItemKind m_kind = ItemKind::other;
};

} // namespace zent::platform::win32
