#pragma once

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

    // What is told of none of them below, they only pass the message on.
    virtual bool onInitDialog(const DialogMessage& message, std::intptr_t& result);
    virtual bool onCommand(const DialogMessage& message, std::intptr_t& result);
    virtual bool onNotify(const DialogMessage& message, std::intptr_t& result);
    virtual bool onShow(const DialogMessage& message, std::intptr_t& result);
    virtual bool onHide(const DialogMessage& message, std::intptr_t& result);
    virtual bool onEnable(const DialogMessage& message, std::intptr_t& result);
    virtual bool onDisable(const DialogMessage& message, std::intptr_t& result);
    /// Children first: the first refusal ends the walk, and is the result. With none, asks
    /// validate().
    virtual bool onValidate(const DialogMessage& message, std::intptr_t& result);
    virtual bool onValidateForSave(const DialogMessage& message, std::intptr_t& result);
    virtual bool onSettingsChanged(const DialogMessage& message, std::intptr_t& result);
    virtual bool onOtherMessage(const DialogMessage& message, std::intptr_t& result);
    virtual bool onDestroy(const DialogMessage& message, std::intptr_t& result);
    virtual bool onFeatureAnnounce(const DialogMessage& message, std::intptr_t& result);
    virtual bool onLock(const DialogMessage& message, std::intptr_t& result);
    virtual bool onUnlock(const DialogMessage& message, std::intptr_t& result);

    /// Whether what the user has entered may go into the ticket, or into a file. One that refuses
    /// has told the user why.
    virtual bool validate(platform::WindowHandle /*window*/) { return true; }
    virtual bool validateForSave(platform::WindowHandle window) { return validate(window); }
};

} // namespace zent
