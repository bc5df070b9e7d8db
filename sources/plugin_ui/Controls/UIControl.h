#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Text/CXString.h"
#include "plugin_ui/MessageProcessorWithChildren.h"
#include "plugin_ui/ObserverSubject.h"

namespace zent {

/// One logical control of a dialog, which may span several of its items (a label, a box and a
/// spin). It shows, hides, enables and disables them together, holds the value, and tells its
/// observers when the user changes it.
///
/// Controls are made before there is a window. What is set then is kept, and shown when the dialog
/// starts or the next time that something is set. Until then, and after the dialog's end, its items
/// are objects that do nothing.
class UIControl : public MessageProcessorWithChildren, public ObserverSubject {
public:
    virtual void setCaptionId(std::uint32_t /*stringId*/) {}
    /// Makes the items show the value. What they tell of meanwhile is no act of the user's, and no
    /// observer hears of it.
    void displayControl();
    /// Looks at what the user has done; true if it was done to this control.
    virtual bool processControlMessage(const DialogMessage& /*message*/,
                                       std::intptr_t& /*result*/) {
        return false;
    }
    /// Prepares the items when the dialog starts. What they tell of meanwhile is dropped as well.
    virtual void setControlCallBack() {}

    bool onInitDialog(const DialogMessage& message, std::intptr_t& result) override;
    bool onCommand(const DialogMessage& message, std::intptr_t& result) override;
    bool onNotify(const DialogMessage& message, std::intptr_t& result) override;
    bool onOtherMessage(const DialogMessage& message, std::intptr_t& result) override;
    bool onShow(const DialogMessage& message, std::intptr_t& result) override;
    bool onHide(const DialogMessage& message, std::intptr_t& result) override;
    bool onEnable(const DialogMessage& message, std::intptr_t& result) override;
    bool onDisable(const DialogMessage& message, std::intptr_t& result) override;
    /// Disables until onUnlock(), which enables whatever was before, or until the dialog's end.
    bool onLock(const DialogMessage& message, std::intptr_t& result) override;
    bool onUnlock(const DialogMessage& message, std::intptr_t& result) override;
    bool onDestroy(const DialogMessage& message, std::intptr_t& result) override;

    void enable() { deliver(UIM_ENABLE); }
    void disable() { deliver(UIM_DISABLE); }
    void setEnabled(bool isEnabled) { deliver(isEnabled ? UIM_ENABLE : UIM_DISABLE); }
    bool isEnabled() const { return m_isEnabled; }
    bool isLocked() const { return m_isLocked; }

    void setToolTip(const CXString& text);
    /// Whether commands that the control has handled go to its children too.
    void setForwardCommands(bool forwards) { m_forwardCommands = forwards; }

protected:
    explicit UIControl(std::uint16_t item);

    /// The part of displayControl() that each kind of control does in its own way.
    virtual void showValue() {}

    /// One more item that shows, hides, enables and disables with the control; 0 is none.
    void addItem(std::uint16_t item);
    /// Gets the items from a dialog that starts, or from none when it has ended.
    virtual void bindItems(const platform::Dialog& dialog);
    const std::vector<std::uint16_t>& getItemIds() const { return m_itemIds; }
    /// Gives the first, 0 if there is none.
    std::uint16_t getItemId() const { return m_itemIds.empty() ? std::uint16_t{0} : m_itemIds[0]; }
    platform::DialogItem& getFirstItem() const;
    bool hasWindow() const { return m_dialog->getHandle() != nullptr; }

private:
    class Showing;

    bool processItemMessage(const DialogMessage& message, std::intptr_t& result);
    void deliver(std::uint32_t message);
    void showItems(bool isShown);
    void enableItems(bool isEnabled);

    platform::Dialog* m_dialog = &platform::none<platform::Dialog>();
    std::vector<std::uint16_t> m_itemIds;
    std::vector<platform::DialogItem*> m_items; // while the dialog is open
    bool m_isEnabled = true;
    bool m_isLocked = false;
    bool m_forwardCommands = false;
    int m_showings = 0; // how many guards are alive: they may be nested
    CXString m_toolTipText;
};

/// A control whose first item is of a kind.
template <typename Kind>
class UIControlOf : public UIControl {
protected:
    using UIControl::UIControl;

    Kind& item() const { return *m_item; }
    void bindItems(const platform::Dialog& dialog) override {
        UIControl::bindItems(dialog);
        m_item = &dialog.item<Kind>(getItemId());
    }

private:
    Kind* m_item = &platform::none<Kind>();
};

} // namespace zent
