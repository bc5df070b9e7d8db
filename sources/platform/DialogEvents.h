#pragma once

#include <cstdint>
#include <functional>

namespace zent::platform {

class Dialog;

/// Numbers of the events of a dialog. They are those of the Windows dialog manager, whichever
/// toolkit is below.
namespace event {
constexpr std::uint32_t destroy = 2;
constexpr std::uint32_t drawItem = 0x2B; // wParam: the item; lParam: a const DrawRequest*
constexpr std::uint32_t notify = 78;     // wParam: the item; lParam: a const Notification*
constexpr std::uint32_t initDialog = 272;
constexpr std::uint32_t command = 273;          // wParam: the item, and a notification code << 16
constexpr std::uint32_t horizontalScroll = 276; // wParam: position << 16; lParam: the item
// Events of pictures that watch the mouse. wParam: the item; lParam: the place in it, x | y << 16.
constexpr std::uint32_t mouseMoved = 0x200;
constexpr std::uint32_t mousePressed = 0x201; // the left button
} // namespace event

/// Notification codes of event::command, by the kind of item.
namespace notification {
constexpr std::uint32_t clicked = 0;           // buttons of all kinds
constexpr std::uint32_t comboSelected = 1;     // the user chose an item
constexpr std::uint32_t comboEdited = 5;       // the text of an editable combo box changed
constexpr std::uint32_t listSelected = 1;      // list boxes
constexpr std::uint32_t listDoubleClicked = 2; // list boxes
constexpr std::uint32_t editChanged = 0x300;   // after each change of the text, by whomever
constexpr std::uint32_t editLeft = 0x200;      // the item lost the keyboard focus
// Codes of event::notify.
constexpr std::int32_t spinStep = -722;
/// The user is about to select a row, or to deselect it; listViewChanged follows when it is done.
/// It can't be refused.
constexpr std::int32_t listViewChanging = -100;
constexpr std::int32_t listViewChanged = -101; // a row's selection or check mark
constexpr std::int32_t listViewActivated = -3; // double click
} // namespace notification

/// What happened to an item, for event::notify.
struct Notification {
    std::uint16_t item = 0;
    std::int32_t code = 0;
    std::int32_t row = -1;      // list views: the row
    std::int32_t column = 0;    // list views
    std::uint32_t newState = 0; // list views, of a row that is changing: bit 1 focused, 2 selected
    std::int32_t position = 0;  // spins: before the step
    std::int32_t delta = 0;     // spins: 1 down, -1 up, or more
};

/// An owner-drawn button that wants drawing, for event::drawItem. It is valid during the event.
struct DrawRequest {
    std::uint16_t item = 0;
    std::uint32_t action = 1; // bit 1 the whole item, bit 2 the selection changed
    std::uint32_t state = 0;  // bit 1 pressed, bit 4 disabled
    /// Draws a bitmap resource on the button; what has the colour of its top left pixel stays out.
    std::function<void(std::uint32_t bitmap)> drawBitmap;
};

/// Receives the events of one dialog, on the thread that runs it.
class DialogProcedure {
public:
    virtual ~DialogProcedure() = default;
    /// Returns whether the event was handled; `result` is the message result, read back by
    /// Dialog::send. Words that hold pointers are pointer-sized. No exception may leave but one
    /// that is to end in the application.
    virtual bool processEvent(Dialog& dialog, std::uint32_t message, std::uintptr_t wParam,
                              std::intptr_t lParam, std::intptr_t& result) = 0;

protected:
    DialogProcedure() = default;
    DialogProcedure(const DialogProcedure&) = default;
    DialogProcedure& operator=(const DialogProcedure&) = default;
};

} // namespace zent::platform
