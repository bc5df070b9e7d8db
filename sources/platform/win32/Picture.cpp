#include "platform/win32/Picture.h"

#include "platform/win32/ResourceImages.h"

namespace zent::platform::win32 {

namespace {

constexpr const wchar_t* bitmapProperty = L"SC_ID";

/// Draws the page below the item, so that nothing of an old bitmap shows through the new one.
void redrawWithPage(HWND item) {
    RECT place = {};
    GetWindowRect(item, &place);
    const HWND dialog = GetParent(item);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    RedrawWindow(dialog, &place, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

} // namespace

void Picture::setBitmap(const ResourceModule& resources, std::uint32_t id, bool clearsGround) {
    const auto number = static_cast<std::uintptr_t>(id);
    if (GetPropW(window(), bitmapProperty) == reinterpret_cast<HANDLE>(number)) {
        return;
    }
    SetPropW(window(), bitmapProperty, reinterpret_cast<HANDLE>(number));
    m_bitmap = MaskedBitmap(id == 0 ? nullptr : createBitmap(resources, id));
    if (clearsGround) {
        redrawWithPage(window());
    } else {
        RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_NOERASE);
    }
}

LRESULT Picture::process(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCHITTEST && m_tellMouse) {
        return HTCLIENT; // a static item would leave the mouse to the page
    }
    const LRESULT result = SubclassedItem::process(message, wParam, lParam);
    if (message == WM_PAINT) {
        m_bitmap.draw(WindowSurface(window()).get(), 0, 0);
    } else if (message == WM_PRINTCLIENT) {
        m_bitmap.draw(reinterpret_cast<HDC>(wParam), 0, 0);
    } else if (message == WM_DESTROY) {
        RemovePropW(window(), bitmapProperty);
    } else if ((message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN) && m_tellMouse) {
        const auto tell = m_tellMouse; // copied, since the call may end the window
        tell(message, lParam);
    }
    return result;
}

} // namespace zent::platform::win32
