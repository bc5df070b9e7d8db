#include "plugin_ui/DialogMessage.h"

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

std::intptr_t DialogMessage::resend() const {
    return windowSystem().send(m_window, m_message, m_wParam, m_lParam);
}

} // namespace zent
