#include "plugin_ui/Controls/UIControl.h"

#include "plugin_ui/FirstFailure.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

UIControl::UIControl(std::uint16_t item) : m_toolTipItem(item) { addItem(item); }

void UIControl::addItem(std::uint16_t item) {
    if (item != 0) {
        m_itemIds.push_back(item);
    }
}

bool UIControl::onInitDialog(const DialogMessage& message, std::intptr_t& result) {
    m_window = message.getWindow();
    platform::WindowSystem& system = windowSystem();
    if (!m_itemIds.empty() && system.hasItem(m_window, m_itemIds.front())) {
        m_isEnabled = system.isItemEnabled(m_window, m_itemIds.front());
    }
    FirstFailure failure;
    failure.attempt([this] { setControlCallBack(); });
    if (m_isLocked) {
        enableItems(false);
    }
    if (!m_toolTipText.isEmpty()) {
        system.setToolTip(m_window, m_toolTipItem, m_toolTipText);
    }
    bool isHandled = false;
    failure.attempt([&] { isHandled = processChildren(message, result); });
    failure.raise();
    return isHandled;
}

bool UIControl::onCommand(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = processControlMessage(message, result);
    return isHandled && !m_forwardCommands ? isHandled : processChildren(message, result);
}

bool UIControl::onNotify(const DialogMessage& message, std::intptr_t& result) {
    return processControlMessage(message, result) || processChildren(message, result);
}

bool UIControl::onOtherMessage(const DialogMessage& message, std::intptr_t& result) {
    return processControlMessage(message, result) || processChildren(message, result);
}

bool UIControl::onShow(const DialogMessage& message, std::intptr_t& result) {
    showItems(true);
    return processChildren(message, result);
}

bool UIControl::onHide(const DialogMessage& message, std::intptr_t& result) {
    showItems(false);
    return processChildren(message, result);
}

bool UIControl::onEnable(const DialogMessage& message, std::intptr_t& result) {
    if (!m_isLocked) {
        enableItems(true);
    }
    return processChildren(message, result);
}

bool UIControl::onDisable(const DialogMessage& message, std::intptr_t& result) {
    enableItems(false);
    return processChildren(message, result);
}

bool UIControl::onLock(const DialogMessage& /*message*/, std::intptr_t& /*result*/) {
    m_isLocked = true;
    if (hasWindow()) {
        disable();
    }
    return false;
}

bool UIControl::onUnlock(const DialogMessage& /*message*/, std::intptr_t& /*result*/) {
    m_isLocked = false;
    if (hasWindow()) {
        enable();
    }
    return false;
}

bool UIControl::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = processChildren(message, result);
    m_window = nullptr;
    m_isLocked = false;
    return isHandled;
}

void UIControl::setToolTip(const CXString& text) {
    m_toolTipText = text;
    if (hasWindow()) {
        windowSystem().setToolTip(m_window, m_toolTipItem, m_toolTipText);
    }
}

void UIControl::deliver(std::uint32_t message) {
    std::intptr_t result = 0;
    processMessage(DialogMessage(m_window, message), result);
}

void UIControl::showItems(bool isShown) {
    for (const std::uint16_t item : m_itemIds) {
        windowSystem().showItem(m_window, item, isShown);
    }
}

void UIControl::enableItems(bool isEnabled) {
    if (m_isEnabled == isEnabled || !hasWindow()) {
        return;
    }
    m_isEnabled = isEnabled;
    for (const std::uint16_t item : m_itemIds) {
        windowSystem().enableItem(m_window, item, isEnabled);
    }
}

} // namespace zent
