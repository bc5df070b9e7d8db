#include "platform/win32/MaskedBitmap.h"

#include <utility>

namespace zent::platform::win32 {

namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

/// Sets the colours that a mask's bits get on a coloured target: set bits get the background
/// colour, others the text colour.
void setColors(HDC target, COLORREF ofBackground, COLORREF ofPicture) {
    SetBkColor(target, ofBackground);
    SetTextColor(target, ofPicture);
}

} // namespace

MaskedBitmap::MaskedBitmap(OwnBitmap bitmap) : m_picture(std::move(bitmap)) {
    BITMAP form = {};
    if (m_picture == nullptr || GetObjectW(m_picture.get(), sizeof(form), &form) == 0) {
        return;
    }
    m_size = {form.bmWidth, form.bmHeight};
    m_mask.reset(CreateBitmap(form.bmWidth, form.bmHeight, 1, 1, nullptr));

    const WindowSurface screen(nullptr);
    const MemorySurface picture(screen.get(), m_picture.get());
    const MemorySurface mask(screen.get(), m_mask.get());
    // Copied into a mask, a pixel of the background colour is a bit set.
    SetBkColor(picture.get(), GetPixel(picture.get(), 0, 0));
    BitBlt(mask.get(), 0, 0, m_size.cx, m_size.cy, picture.get(), 0, 0, SRCCOPY);
    setColors(picture.get(), black, white);
    BitBlt(picture.get(), 0, 0, m_size.cx, m_size.cy, mask.get(), 0, 0, SRCAND);
}

void MaskedBitmap::draw(HDC target, int x, int y) const {
    if (m_mask == nullptr) {
        return;
    }
    const MemorySurface picture(target, m_picture.get());
    const MemorySurface mask(target, m_mask.get());
    const int state = SaveDC(target);
    setColors(target, white, black);
    BitBlt(target, x, y, m_size.cx, m_size.cy, mask.get(), 0, 0, SRCAND);
    BitBlt(target, x, y, m_size.cx, m_size.cy, picture.get(), 0, 0, SRCPAINT);
    RestoreDC(target, state);
}

} // namespace zent::platform::win32
