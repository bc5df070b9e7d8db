#pragma once

#include <memory>

#include <windows.h>

namespace zent::platform::win32 {

/// An object that gets a dialog item's messages before the item's own procedure does. It belongs to
/// the item's window and goes with it.
class SubclassedItem {
public:
    virtual ~SubclassedItem() = default;
    SubclassedItem(const SubclassedItem&) = delete;
    SubclassedItem& operator=(const SubclassedItem&) = delete;

    /// Puts an object before its window's procedure. False, and without effect, if the system
    /// refuses.
    static bool attach(std::unique_ptr<SubclassedItem> item);
    /// The object before a window's procedure, or null.
    static SubclassedItem* of(HWND window);

protected:
    explicit SubclassedItem(HWND window) : m_window(window) {}

    /// Answers a message, by the item's own procedure by default.
    virtual LRESULT process(UINT message, WPARAM wParam, LPARAM lParam);
    HWND window() const { return m_window; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT processSafely(UINT message, WPARAM wParam, LPARAM lParam);
    void detach();

    HWND m_window;
};

} // namespace zent::platform::win32
