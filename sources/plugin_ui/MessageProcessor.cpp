#include "plugin_ui/MessageProcessor.h"

#include <algorithm>
#include <iterator>

namespace zent {

namespace {

/// Messages and handlers are paired in this one place, so that a tree can be driven by whoever
/// delivers the numbers.
struct Handler {
    std::uint32_t message;
    bool (MessageProcessor::*handle)(const DialogMessage&, std::intptr_t&);
};

constexpr Handler handlers[] = {
    {platform::event::initDialog, &MessageProcessor::onInitDialog},
    {platform::event::command, &MessageProcessor::onCommand},
    {platform::event::notify, &MessageProcessor::onNotify},
    {platform::event::destroy, &MessageProcessor::onDestroy},
    {UIM_SHOW, &MessageProcessor::onShow},
    {UIM_HIDE, &MessageProcessor::onHide},
    {UIM_ENABLE, &MessageProcessor::onEnable},
    {UIM_DISABLE, &MessageProcessor::onDisable},
    {UIM_VALIDATE, &MessageProcessor::onValidate},
    {UIM_VALIDATE_FOR_SAVE, &MessageProcessor::onValidateForSave},
    {UIM_SETTINGS_CHANGED, &MessageProcessor::onSettingsChanged},
    {UIM_FEATURE_ANNOUNCE, &MessageProcessor::onFeatureAnnounce},
    {UIM_LOCK, &MessageProcessor::onLock},
    {UIM_UNLOCK, &MessageProcessor::onUnlock},
};

} // namespace

bool MessageProcessor::processMessage(const DialogMessage& message, std::intptr_t& result) {
    const auto* const row = std::ranges::find(handlers, message.getMessage(), &Handler::message);
    const auto handle = row != std::end(handlers) ? row->handle : &MessageProcessor::onOtherMessage;
    return (this->*handle)(message, result);
}

bool MessageProcessor::ask(Question question, const DialogMessage& message, std::intptr_t& result) {
    if (processChildren(message, result)) {
        return true;
    }
    const bool isAccepted = (this->*question)(message.getWindow());
    result = isAccepted ? validation::accepted : validation::refused;
    return !isAccepted; // only a refusal ends the walk
}

bool MessageProcessor::onValidate(const DialogMessage& message, std::intptr_t& result) {
    return ask(&MessageProcessor::validate, message, result);
}

bool MessageProcessor::onValidateForSave(const DialogMessage& message, std::intptr_t& result) {
    return ask(&MessageProcessor::validateForSave, message, result);
}

} // namespace zent
