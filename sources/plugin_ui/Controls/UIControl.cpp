#include "plugin_ui/Controls/UIControl.h"

#include <algorithm>

#include "plugin_ui/FirstFailure.h"

namespace zent {

/// As long as one lives, the items speak of what the program does, and the control doesn't listen.
/// It stands here and not in the features, which could only tell the two apart by flags of their
/// own.
class UIControl::Showing {
public:
    explicit Showing(UIControl& control) : m_control(control) { ++m_control.m_showings; }
    ~Showing() { --m_control.m_showings; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

private:
    UIControl& m_control;
};

UIControl::UIControl(std::uint16_t item) { addItem(item); }

void UIControl::addItem(std::uint16_t item) {
    if (item != 0) {
        m_itemIds.push_back(item);
    }
}

void UIControl::bindItems(const platform::Dialog& dialog) {
    m_items.clear();
    for (const std::uint16_t id : m_itemIds) {
        m_items.push_back(&dialog.item(id));
    }
}

platform::DialogItem& UIControl::getFirstItem() const {
    return m_items.empty() ? platform::none<platform::DialogItem>() : *m_items.front();
}

void UIControl::displayControl() {
    const Showing showing(*this);
    showValue();
}

bool UIControl::processItemMessage(const DialogMessage& message, std::intptr_t& result) {
    if (m_showings != 0) {
        return std::ranges::find(m_itemIds, message.getItem()) != m_itemIds.end();
    }
    return processControlMessage(message, result);
}

bool UIControl::onInitDialog(const DialogMessage& message, std::intptr_t& result) {
    m_dialog = &message.getDialog();
    bindItems(*m_dialog);
    if (getFirstItem().isThere()) {
        m_isEnabled = getFirstItem().isEnabled();
    }
    FirstFailure failure;
    failure.attempt([this] {
        const Showing showing(*this);
        setControlCallBack();
    });
    if (m_isLocked) {
        enableItems(false);
    }
    if (!m_toolTipText.isEmpty()) {
        getFirstItem().setToolTip(m_toolTipText);
    }
    bool isHandled = false;
    failure.attempt([&] { isHandled = processChildren(message, result); });
    failure.raise();
    return isHandled;
}

bool UIControl::onCommand(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = processItemMessage(message, result);
    return isHandled && !m_forwardCommands ? isHandled : processChildren(message, result);
}

bool UIControl::onNotify(const DialogMessage& message, std::intptr_t& result) {
    return processItemMessage(message, result) || processChildren(message, result);
}

bool UIControl::onOtherMessage(const DialogMessage& message, std::intptr_t& result) {
    return processItemMessage(message, result) || processChildren(message, result);
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
    m_dialog = &platform::none<platform::Dialog>();
    bindItems(*m_dialog);
    m_isLocked = false;
    return isHandled;
}

void UIControl::setToolTip(const CXString& text) {
    m_toolTipText = text;
    getFirstItem().setToolTip(m_toolTipText);
}

void UIControl::deliver(std::uint32_t message) {
    std::intptr_t result = 0;
    processMessage(DialogMessage(*m_dialog, message), result);
}

void UIControl::showItems(bool isShown) {
    for (platform::DialogItem* const item : m_items) {
        item->show(isShown);
    }
}

void UIControl::enableItems(bool isEnabled) {
    if (m_isEnabled == isEnabled || !hasWindow()) {
        return;
    }
    m_isEnabled = isEnabled;
    for (platform::DialogItem* const item : m_items) {
        item->enable(isEnabled);
    }
}

} // namespace zent
