#include "platform/win32/SubclassedItem.h"

#include <exception>

#include "platform/win32/Dialog.h"

namespace zent::platform::win32 {

namespace {

// The names of the window's properties.
constexpr const wchar_t* itemProperty = L"SC_THS";
constexpr const wchar_t* procedureProperty = L"SC_WND";

WNDPROC ownProcedure(HWND window) {
    return reinterpret_cast<WNDPROC>(GetPropW(window, procedureProperty));
}

LONG_PTR setProcedure(HWND window, WNDPROC procedure) {
    return SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

} // namespace

bool SubclassedItem::attach(std::unique_ptr<SubclassedItem> item) {
    const HWND window = item->window();
    // The properties are set before the first message can come.
    const LONG_PTR own = GetWindowLongPtrW(window, GWLP_WNDPROC);
    const bool isReady =
        SetPropW(window, procedureProperty, reinterpret_cast<HANDLE>(own)) != FALSE &&
        SetPropW(window, itemProperty, item.get()) != FALSE;
    if (isReady && setProcedure(window, &procedure) != 0) {
        static_cast<void>(item.release()); // the window owns it until its last message
        return true;
    }
    item->detach();
    return false;
}

SubclassedItem* SubclassedItem::of(HWND window) {
    return static_cast<SubclassedItem*>(GetPropW(window, itemProperty));
}

LRESULT SubclassedItem::process(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(ownProcedure(m_window), m_window, message, wParam, lParam);
}

LRESULT CALLBACK SubclassedItem::procedure(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    SubclassedItem* const item = of(window);
    if (item == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    if (message != WM_NCDESTROY) {
        return item->processSafely(message, wParam, lParam);
    }
    const std::unique_ptr<SubclassedItem> end(item);
    const WNDPROC own = ownProcedure(window);
    setProcedure(window, own);
    item->detach();
    return CallWindowProcW(own, window, message, wParam, lParam);
}

LRESULT SubclassedItem::processSafely(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return process(message, wParam, lParam);
    } catch (...) {
        Dialog::endBy(std::current_exception(), GetParent(m_window));
        return 0;
    }
}

void SubclassedItem::detach() {
    RemovePropW(m_window, itemProperty);
    RemovePropW(m_window, procedureProperty);
}

} // namespace zent::platform::win32
