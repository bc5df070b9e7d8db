#include "plugin_ui/Features/DialogLaunchButtonUIFeature.h"

namespace zent {

DialogLaunchButtonUIFeature::DialogLaunchButtonUIFeature(UIConfiguration& configuration,
                                                         std::unique_ptr<UIDialog> dialog)
    : UIFeature(configuration), m_ownedDialog(std::move(dialog)), m_dialog(*m_ownedDialog) {
    addComponent(m_dialog);
}

DialogLaunchButtonUIFeature::DialogLaunchButtonUIFeature(UIConfiguration& configuration,
                                                         std::unique_ptr<UIDialog> dialog,
                                                         std::uint16_t buttonId,
                                                         std::uint32_t toolTipId)
    : DialogLaunchButtonUIFeature(configuration, std::move(dialog)) {
    addButton(buttonId, toolTipId);
}

DialogLaunchButtonUIFeature::DialogLaunchButtonUIFeature(UIConfiguration& configuration,
                                                         UIDialog& dialog, std::uint16_t buttonId,
                                                         std::uint32_t toolTipId)
    : UIFeature(configuration), m_dialog(dialog) {
    addComponent(m_dialog);
    addButton(buttonId, toolTipId);
}

void DialogLaunchButtonUIFeature::addButton(std::uint16_t buttonId, std::uint32_t toolTipId) {
    makeChild<PushButtonUIControl>(buttonId, toolTipId).attach(*this);
}

bool DialogLaunchButtonUIFeature::isSupported() { return m_dialog.configure(); }

void DialogLaunchButtonUIFeature::handleSubjectUpdate(std::uint16_t /*subjectId*/) {
    if (m_dialog.runModal(getWindow(), *getSettings())) {
        notifyObservers();
    }
}

void DialogLaunchButtonUIFeature::setParentFeature(FeatureEnum feature) {
    UIFeature::setParentFeature(feature);
    m_dialog.setParentFeature(feature);
}

void DialogLaunchButtonUIFeature::setPrinterDefault(FeatureSettings& settings) {
    m_dialog.broadcastPrinterDefault(settings);
}

bool DialogLaunchButtonUIFeature::onLock(const DialogMessage& message, std::intptr_t& result) {
    getConfiguration().readOnly = true;
    return processChildren(message, result);
}

bool DialogLaunchButtonUIFeature::onUnlock(const DialogMessage& message, std::intptr_t& result) {
    getConfiguration().readOnly = false;
    return processChildren(message, result);
}

} // namespace zent
