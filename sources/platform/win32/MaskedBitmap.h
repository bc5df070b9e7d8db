#pragma once

#include "platform/win32/GdiHandles.h"

namespace zent::platform::win32 {

/// A picture whose background, what has the colour of its top left pixel, stays out when it is
/// drawn: a mask of the background, and the picture with a black one. Both are put on the target by
/// plain copies, which every display driver can do.
class MaskedBitmap {
public:
    /// Null draws nothing.
    explicit MaskedBitmap(OwnBitmap bitmap);

    SIZE size() const { return m_size; }
    void draw(HDC target, int x, int y) const;

private:
    OwnBitmap m_picture;
    OwnBitmap m_mask;
    SIZE m_size = {};
};

} // namespace zent::platform::win32
