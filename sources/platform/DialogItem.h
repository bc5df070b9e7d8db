#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Rectangle.h"

namespace zent::platform {

/// An item of a dialog, of whichever kind: what is common to all. Each kind is a class of its own
/// below this one.
///
/// The operations of these classes do nothing and answer with empty, zero or false: an object of
/// such a class stands for an item that the dialog lacks (none()), since pages leave out what they
/// don't show. The adapters' items derive from them. An item lives as long as its dialog, up to the
/// end of event::destroy; one that was removed is there no more, but can still be asked.
class DialogItem {
public:
    DialogItem() = default;
    virtual ~DialogItem() = default;
    DialogItem(const DialogItem&) = delete;
    DialogItem& operator=(const DialogItem&) = delete;

    virtual bool isThere() const { return false; }
    virtual std::uint16_t getId() const { return 0; }

    /// The item's place in the dialog's inner area.
    virtual Rectangle getPlace() const { return {}; }
    virtual void moveTo(const Rectangle& /*place*/) {}
    virtual Rectangle getScreenPlace() const { return {}; }
    /// Whether the item itself is shown, whether or not the dialog is visible.
    virtual bool isShown() const { return false; }
    virtual void show(bool /*isShown*/) {}
    virtual bool isEnabled() const { return false; }
    virtual void enable(bool /*isEnabled*/) {}
    virtual void focus() {}
    /// Takes the item away for good.
    virtual void remove() {}

    /// Lines end with CR LF, in edit items of several lines too; those of one line keep what they
    /// are given.
    virtual std::u16string getText() const { return {}; }
    virtual void setText(std::u16string_view /*text*/) {}
    /// The width of a text of one line in the item's font, in pixels.
    virtual std::int32_t getTextWidth(std::u16string_view /*text*/) const { return 0; }
    virtual void setToolTip(std::u16string_view /*text*/) {}
    /// Keeps a number with the item under a name, for programs that look at the dialog from
    /// outside: a window property, until the dialog's end. Nothing where windows have none.
    virtual void setProperty(std::u16string_view /*name*/, std::uintptr_t /*value*/) {}
    /// A button whose style has one of its three lowest bits set: a group box, check box or radio
    /// button, also a default or an owner-drawn button, but no plain one.
    virtual bool isMarkedButton() const { return false; }
};

} // namespace zent::platform
