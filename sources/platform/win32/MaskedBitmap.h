#pragma once

#include "platform/win32/GdiHandles.h"

namespace zent::platform::win32 {

/// A picture that is drawn without its background, which is all that has the colour of its top left
/// pixel. It consists of a mask of the background, and of the picture with a black one. Both are
/// put on the target by plain copies, which every display driver can do.
class MaskedBitmap {
public:
    /// A null bitmap draws nothing.
    explicit MaskedBitmap(OwnBitmap bitmap);

    SIZE size() const { return m_size; }
    void draw(HDC target, int x, int y) const;

private:
    OwnBitmap m_picture;
    OwnBitmap m_mask;
    SIZE m_size = {};
};

} // namespace zent::platform::win32
