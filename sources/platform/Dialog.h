#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/DialogEvents.h"
#include "platform/DialogItems.h"
#include "platform/KeepForever.h"
#include "platform/WindowHandle.h"

namespace zent::platform {

/// The object of a class that stands for something that isn't there: a dialog, or an item of a
/// kind.
template <typename Kind>
Kind& none() {
    static Kind& object = keepForever<Kind>();
    return object;
}

/// An open dialog. All of it belongs to the thread that runs the dialog.
///
/// The order of events. Creating a dialog makes all windows from the template and then sends
/// event::initDialog (wParam 0, lParam 0), before anything is visible. The user's acts arrive as
/// commands and notifications. What the program does itself raises no event, but for setText on
/// edit items, which raises notification::editChanged whenever the text changes, and for send(),
/// which delivers just the message that it is given. event::destroy comes last, while the items are
/// still there.
///
/// The operations of this class do nothing, so that an object of it stands for a dialog that isn't
/// there.
class Dialog {
public:
    Dialog() = default;
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    virtual WindowHandle getHandle() { return nullptr; }

    /// Ends a modal dialog when the event at hand is done; validation has passed.
    virtual void end(std::intptr_t /*value*/) {}
    /// Ends a modeless dialog.
    virtual void destroy() {}
    /// Delivers a message to the dialog's procedure, now, and gives the message result.
    virtual std::intptr_t send(std::uint32_t /*message*/, std::uintptr_t /*wParam*/,
                               std::intptr_t /*lParam*/) {
        return 0;
    }
    /// Tells the sheet that holds the dialog, if any, that something changed.
    virtual void reportChanged() {}

    virtual void setCaption(std::u16string_view /*text*/) {}
    virtual bool isVisible() const { return false; }
    /// The place of the dialog on the screen, the frame included.
    virtual Rectangle getWindowRectangle() const { return {}; }
    /// The inner area, from (0, 0).
    virtual Rectangle getClientRectangle() const { return {}; }
    virtual void moveTo(const Rectangle& /*place*/) {}
    /// The part of the screen that is free for windows.
    virtual Rectangle getWorkArea() const { return {}; }
    /// Converts dialog units of this dialog's font to pixels.
    virtual Rectangle mapDialogUnits(const Rectangle& /*units*/) const { return {}; }

    /// The vertical resolution of the screen.
    virtual std::int32_t getDotsPerInch() const { return 0; }

    /// The item with the keyboard's focus, 0 for none.
    virtual std::uint16_t getFocusedItem() const { return 0; }
    /// The items in the order of the template.
    virtual std::vector<DialogItem*> getItems() const { return {}; }
    /// The first item of an id, null if there is none.
    virtual DialogItem* findItem(std::uint16_t /*id*/) const { return nullptr; }
    /// The first item of an id if it is of a kind; otherwise an object that does nothing.
    template <typename Kind = DialogItem>
    Kind& item(std::uint16_t id) const {
        auto* const found = dynamic_cast<Kind*>(findItem(id));
        return found != nullptr ? *found : none<Kind>();
    }
};

} // namespace zent::platform
