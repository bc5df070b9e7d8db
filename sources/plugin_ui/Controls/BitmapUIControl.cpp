#include "plugin_ui/Controls/BitmapUIControl.h"

#include "resources/ids.h"

namespace zent {

void BitmapUIControl::setBitmap(std::uint32_t bitmap) {
    m_bitmap = bitmap;
    displayControl();
}

void BitmapUIControl::showValue() { item().setBitmap(m_bitmap, m_bitmap != IDB_OVERLAY); }

} // namespace zent
