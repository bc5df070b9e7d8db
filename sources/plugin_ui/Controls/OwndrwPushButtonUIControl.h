#pragma once

#include "plugin_ui/Controls/PushButtonUIControl.h"

namespace zent {

/// A button that shows one of three bitmaps.
class OwndrwPushButtonUIControl : public PushButtonUIControl {
public:
    struct Bitmaps {
        std::uint32_t normal = 0;
        std::uint32_t pressed = 0;
        std::uint32_t disabled = 0;
    };

    OwndrwPushButtonUIControl(std::uint16_t item, const Bitmaps& bitmaps,
                              std::uint32_t toolTipId = 0)
        : PushButtonUIControl(item, toolTipId), m_bitmaps(bitmaps) {}

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;
    void setControlCallBack() override;

private:
    void draw(const platform::DrawRequest& request) const;

    Bitmaps m_bitmaps;
};

} // namespace zent
