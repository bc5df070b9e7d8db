#pragma once

#include "ocore/FeatureSettings/FeatureNumber.h"
#include "plugin_ui/DialogMessage.h"
#include "plugin_ui/UIComponent.h"

namespace zent {

/// Takes window messages: one handler for each kind. A handler returns whether it has handled the
/// message, which stops its walk through the tree, and may set the message result.
class MessageProcessor : public UIComponent {
public:
    /// Calls the message's handler; what none is for goes to onOtherMessage.
    virtual bool processMessage(const DialogMessage& message, std::intptr_t& result);
    /// Passes the message on to the children, in order, up to the first that handles it.
    virtual bool processChildren(const DialogMessage& /*message*/, std::intptr_t& /*result*/) {
        return false;
    }

    // The handlers share one body: what a class doesn't replace passes the message on.
#define ZENT_MESSAGE_HANDLER(name)                                                                 \
    virtual bool name(const DialogMessage& message, std::intptr_t& result) {                       \
        return processChildren(message, result);                                                   \
    }
    ZENT_MESSAGE_HANDLER(onInitDialog)
    ZENT_MESSAGE_HANDLER(onCommand)
    ZENT_MESSAGE_HANDLER(onNotify)
    ZENT_MESSAGE_HANDLER(onShow)
    ZENT_MESSAGE_HANDLER(onHide)
    ZENT_MESSAGE_HANDLER(onEnable)
    ZENT_MESSAGE_HANDLER(onDisable)
    ZENT_MESSAGE_HANDLER(onSettingsChanged)
    ZENT_MESSAGE_HANDLER(onOtherMessage)
    ZENT_MESSAGE_HANDLER(onDestroy)
    ZENT_MESSAGE_HANDLER(onFeatureAnnounce)
    ZENT_MESSAGE_HANDLER(onLock)
    ZENT_MESSAGE_HANDLER(onUnlock)
#undef ZENT_MESSAGE_HANDLER
    /// The children come first, and the first refusal ends the walk as its result. Without one
    /// validate() or validateForSave() is asked.
    virtual bool onValidate(const DialogMessage& message, std::intptr_t& result);
    virtual bool onValidateForSave(const DialogMessage& message, std::intptr_t& result);

    /// Whether what the user has entered may go into the ticket, or into a file. Who refuses tells
    /// the user why.
    virtual bool validate(platform::WindowHandle /*window*/) { return true; }
    virtual bool validateForSave(platform::WindowHandle window) { return validate(window); }

    // What concerns components that stand for a feature of the ticket; others know nothing of it.
    enum class Support { notAFeature, supported, unsupported };
    virtual Support getSupport() { return Support::notAFeature; }
    virtual void setParentFeature(FeatureEnum /*feature*/) {}
    virtual void setSettings(FeatureSettings* /*settings*/) {}

private:
    using Question = bool (MessageProcessor::*)(platform::WindowHandle);
    bool ask(Question question, const DialogMessage& message, std::intptr_t& result);
};

} // namespace zent
