#include "plugin_ui/Features/UIFeature.h"

#include "plugin_ui/Controls/StaticUIControl.h"
#include "plugin_ui/FirstFailure.h"

namespace zent {

bool UIFeature::onInitDialog(const DialogMessage& message, std::intptr_t& result) {
    m_dialog = &message.getDialog();
    m_settings = message.getObject<FeatureSettings>();
    bool isHandled = false;
    FirstFailure failure;
    failure.attempt([&] { isHandled = processChildren(message, result); });
    failure.attempt([this] { initializeFeature(); });
    failure.attempt([this] { announce(); });
    failure.raise();
    return isHandled;
}

bool UIFeature::onSettingsChanged(const DialogMessage& message, std::intptr_t& result) {
    bool isHandled = false;
    FirstFailure failure;
    failure.attempt([this] { updateFeatureWithNewSettings(); });
    failure.attempt([&] { isHandled = processChildren(message, result); });
    failure.raise();
    return isHandled;
}

bool UIFeature::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = processChildren(message, result);
    m_dialog = &platform::none<platform::Dialog>();
    return isHandled;
}

void UIFeature::setSettings(FeatureSettings* settings) {
    m_settings = settings;
    for (const auto& child : getChildren()) {
        child->setSettings(settings);
    }
}

void UIFeature::addStaticControl(std::uint16_t item) { makeChild<StaticUIControl>(item); }

void UIFeature::deliver(std::uint32_t message) {
    std::intptr_t result = 0;
    processMessage(DialogMessage(*m_dialog, message), result);
}

void UIFeature::announce() {
    if (m_role != FeatureRole::none) {
        DialogMessage(*m_dialog, UIM_FEATURE_ANNOUNCE, static_cast<std::uintptr_t>(m_role),
                      reinterpret_cast<std::intptr_t>(this))
            .resend();
    }
}

UIFeature* UIFeature::findAnnounced(const DialogMessage& message, FeatureRole role) {
    return message.getWParam() == static_cast<std::uintptr_t>(role) ? message.getObject<UIFeature>()
                                                                    : nullptr;
}

void UIFeature::refreshSelf() { deliver(UIM_SETTINGS_CHANGED); }
void UIFeature::refreshDialog() { DialogMessage(*m_dialog, UIM_SETTINGS_CHANGED).resend(); }
void UIFeature::enableSelf() { deliver(UIM_ENABLE); }
void UIFeature::disableSelf() { deliver(UIM_DISABLE); }
void UIFeature::reportChanged() { m_dialog->reportChanged(); }

} // namespace zent
