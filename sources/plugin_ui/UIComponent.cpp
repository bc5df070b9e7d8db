#include "plugin_ui/UIComponent.h"

namespace zent {

UIComponent::UIComponent() {
    constexpr std::size_t usualCount = 10;
    m_components.reserve(usualCount);
}

bool UIComponent::offerMessage(const UIComponentMessage& message, std::intptr_t& result) {
    switch (message.kind) {
    case UIComponentMessage::UIMsgSetPrinterDefault:
        return onSetPrinterDefaultMessage(message, result);
    case UIComponentMessage::UIMsgSetDefaultText:
        return onSetDefaultTextMessage(message, result);
    default:
        return false;
    }
}

bool UIComponent::sendComponentMessage(const UIComponentMessage& message, std::intptr_t& result) {
    for (UIComponent* const component : m_components) {
        if (component->offerMessage(message, result)) {
            return true;
        }
    }
    return false;
}

void UIComponent::addComponent(UIComponent& component) { m_components.push_back(&component); }

void UIComponent::removeComponent(const UIComponent& component) {
    std::erase(m_components, &component);
}

bool UIComponent::onSetPrinterDefaultMessage(const UIComponentMessage& message,
                                             std::intptr_t& result) {
    setPrinterDefault(*message.lParam);
    return sendComponentMessage(message, result);
}

bool UIComponent::onSetDefaultTextMessage(const UIComponentMessage& message,
                                          std::intptr_t& result) {
    setDefaultText(message.wParam);
    return sendComponentMessage(message, result);
}

void UIComponent::broadcastPrinterDefault(FeatureSettings& settings) {
    std::intptr_t result = 0;
    sendComponentMessage({UIComponentMessage::UIMsgSetPrinterDefault, 0, &settings}, result);
}

void UIComponent::broadcastDefaultText(std::uint32_t stringId) {
    std::intptr_t result = 0;
    sendComponentMessage({UIComponentMessage::UIMsgSetDefaultText, stringId, nullptr}, result);
}

} // namespace zent
