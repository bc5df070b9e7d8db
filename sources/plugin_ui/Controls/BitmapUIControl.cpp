#include "plugin_ui/Controls/BitmapUIControl.h"

#include "ocore/CurrentWindowSystem.h"

namespace zent {

void BitmapUIControl::setBitmap(std::uint32_t bitmap) {
    m_bitmap = bitmap;
    displayControl();
}

void BitmapUIControl::displayControl() {
    if (hasWindow()) {
        windowSystem().setBitmap(getWindow(), getItemIds().front(), m_bitmap);
    }
}

} // namespace zent
