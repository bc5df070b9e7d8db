#include "plugin_ui/Controls/BitmapUIControl.h"

namespace zent {

namespace {

constexpr std::uint32_t overWhatIsThere = 1010; // drawn without clearing the ground

} // namespace

void BitmapUIControl::setBitmap(std::uint32_t bitmap) {
    m_bitmap = bitmap;
    displayControl();
}

void BitmapUIControl::displayControl() { item().setBitmap(m_bitmap, m_bitmap != overWhatIsThere); }

} // namespace zent
