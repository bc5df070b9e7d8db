#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// Shows a picture without its background.
class BitmapUIControl : public UIControlOf<platform::PictureItem> {
public:
    explicit BitmapUIControl(std::uint16_t item, std::uint32_t bitmap = 0)
        : UIControlOf(item), m_bitmap(bitmap) {}

    /// Names a bitmap resource, 0 for none.
    void setBitmap(std::uint32_t bitmap);
    std::uint32_t getBitmap() const { return m_bitmap; }

    void setControlCallBack() override { displayControl(); }

protected:
    void showValue() override;

private:
    std::uint32_t m_bitmap;
};

} // namespace zent
