#include "plugin_ui/MessageProcessor.h"

namespace zent {

namespace {

/// The answer of a node whose children have no objection: only a refusal ends the walk.
bool concludeValidation(bool isAccepted, std::intptr_t& result) {
    result = isAccepted ? validation::accepted : validation::refused;
    return !isAccepted;
}

} // namespace

bool MessageProcessor::processMessage(const DialogMessage& message, std::intptr_t& result) {
    switch (message.getMessage()) {
    case platform::event::initDialog:
        return onInitDialog(message, result);
    case platform::event::command:
        return onCommand(message, result);
    case platform::event::notify:
        return onNotify(message, result);
    case platform::event::destroy:
        return onDestroy(message, result);
    case UIM_SHOW:
        return onShow(message, result);
    case UIM_HIDE:
        return onHide(message, result);
    case UIM_ENABLE:
        return onEnable(message, result);
    case UIM_DISABLE:
        return onDisable(message, result);
    case UIM_VALIDATE:
        return onValidate(message, result);
    case UIM_VALIDATE_FOR_SAVE:
        return onValidateForSave(message, result);
    case UIM_SETTINGS_CHANGED:
        return onSettingsChanged(message, result);
    case UIM_FEATURE_ANNOUNCE:
        return onFeatureAnnounce(message, result);
    case UIM_LOCK:
        return onLock(message, result);
    case UIM_UNLOCK:
        return onUnlock(message, result);
    default:
        return onOtherMessage(message, result);
    }
}

bool MessageProcessor::onInitDialog(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onCommand(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onNotify(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onShow(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onHide(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onEnable(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onDisable(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onSettingsChanged(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onOtherMessage(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onFeatureAnnounce(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onLock(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}
bool MessageProcessor::onUnlock(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}

bool MessageProcessor::onValidate(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result) ||
           concludeValidation(validate(message.getWindow()), result);
}

bool MessageProcessor::onValidateForSave(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result) ||
           concludeValidation(validateForSave(message.getWindow()), result);
}

} // namespace zent
