#pragma once

#include <cstdint>
#include <memory>

#include "platform/DialogItems.h"
#include "platform/win32/ItemKind.h"

#include <windows.h>

namespace zent::platform::win32 {

class Dialog;

/// An item of a dialog, with its window. Each kind of item is a class of its own, in a source of
/// its own; what the user does to it, its window tells the dialog.
class Item : public virtual DialogItem {
public:
    /// Makes the item of a window, by the window's class.
    static std::unique_ptr<Item> make(Dialog& dialog, HWND window);

    Item(Dialog& dialog, HWND window);

    bool isThere() const override { return m_window != nullptr; }
    std::uint16_t getId() const override { return m_id; }
    Rectangle getPlace() const override;
    void moveTo(const Rectangle& place) override;
    Rectangle getScreenPlace() const override;
    bool isShown() const override;
    void show(bool isShown) override;
    bool isEnabled() const override;
    void enable(bool isEnabled) override;
    void focus() override;
    void remove() override;
    std::u16string getText() const override;
    void setText(std::u16string_view text) override;
    std::int32_t getTextWidth(std::u16string_view text) const override;
    void setToolTip(std::u16string_view text) override;
    void setProperty(std::u16string_view name, std::uintptr_t value) override;

    HWND window() const { return m_window; }
    ItemKind kind() const { return m_kind; }

protected:
    Dialog& dialog() const { return m_dialog; }
    bool hasStyle(std::uint32_t bits) const;
    /// Sends the window a message, and keeps events from following from it; 0 if there is no
    /// window.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT send(UINT message, WPARAM wParam, const void* lParam) const {
        return send(message, wParam, reinterpret_cast<LPARAM>(lParam));
    }

private:
    /// Moves the keyboard's focus on if the item has it.
    void leave() const;

    Dialog& m_dialog;
    HWND m_window; // null once the item is removed
    ItemKind m_kind;
    std::uint16_t m_id;
};

// The kinds of items.
std::unique_ptr<Item> makeButton(Dialog& dialog, HWND window);
std::unique_ptr<Item> makeEdit(Dialog& dialog, HWND window);
/// A combo box or list box.
std::unique_ptr<Item> makeChoice(Dialog& dialog, HWND window);
std::unique_ptr<Item> makeListView(Dialog& dialog, HWND window);
/// A slider, scroll bar or spin.
std::unique_ptr<Item> makeRange(Dialog& dialog, HWND window);
std::unique_ptr<Item> makeLabel(Dialog& dialog, HWND window);

} // namespace zent::platform::win32
