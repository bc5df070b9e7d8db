#include "plugin_ui/Controls/OwndrwPushButtonUIControl.h"

namespace zent {

void OwndrwPushButtonUIControl::setControlCallBack() {
    const auto keep = [this](std::u16string_view name, std::uint32_t bitmap) {
        getFirstItem().setProperty(name, bitmap);
    };
    keep(u"SC_ID", m_bitmaps.normal);
    keep(u"SC_DN_ID", m_bitmaps.pressed);
    keep(u"SC_DSBL_ID", m_bitmaps.disabled);
}

bool OwndrwPushButtonUIControl::processControlMessage(const DialogMessage& message,
                                                      std::intptr_t& result) {
    if (message.getMessage() == platform::event::drawItem && message.getItem() == getItemId()) {
        draw(*message.getObject<const platform::DrawRequest>());
        return true;
    }
    return PushButtonUIControl::processControlMessage(message, result);
}

void OwndrwPushButtonUIControl::draw(const platform::DrawRequest& request) const {
    constexpr std::uint32_t wholeItem = 1;
    constexpr std::uint32_t selection = 2;
    constexpr std::uint32_t isPressed = 1;
    constexpr std::uint32_t isDisabled = 4;
    if (request.action != wholeItem && request.action != selection) {
        return; // a change of the focus alone
    }
    std::uint32_t bitmap = m_bitmaps.normal;
    if ((request.state & isPressed) != 0) {
        bitmap = m_bitmaps.pressed;
    } else if ((request.state & isDisabled) != 0) {
        bitmap = m_bitmaps.disabled;
    }
    request.drawBitmap(bitmap);
}

} // namespace zent
