#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ResourceModule.h"
#include "platform/System.h"

namespace zent::platform {

/// Numbers of the events of a dialog. They are those of the Windows dialog manager, whichever
/// toolkit is below.
namespace event {
constexpr std::uint32_t destroy = 2;
constexpr std::uint32_t drawItem = 0x2B; // wParam: the item; lParam: a const DrawRequest*
constexpr std::uint32_t notify = 78;     // wParam: the item; lParam: a const Notification*
constexpr std::uint32_t initDialog = 272;
constexpr std::uint32_t command = 273;          // wParam: the item, and a notification code << 16
constexpr std::uint32_t horizontalScroll = 276; // wParam: position << 16; lParam: the item
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
constexpr std::int32_t listViewChanged = -101; // a row's selection or check mark
constexpr std::int32_t listViewActivated = -3; // double click
} // namespace notification

/// What happened to an item, for event::notify.
struct Notification {
    std::uint16_t item = 0;
    std::int32_t code = 0;
    std::int32_t row = -1;     // list views: the row
    std::int32_t column = 0;   // list views
    std::int32_t position = 0; // spins: before the step
    std::int32_t delta = 0;    // spins: 1 down, -1 up, or more
};

/// An owner-drawn button that wants drawing, for event::drawItem. It is valid during the event.
struct DrawRequest {
    std::uint16_t item = 0;
    std::uint32_t action = 1; // bit 1 the whole item, bit 2 the selection changed
    std::uint32_t state = 0;  // bit 1 pressed, bit 4 disabled
    void* canvas = nullptr;   // for WindowSystem::drawBitmap
};

/// A rectangle in pixels; right and bottom lie just outside.
struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    std::int32_t width() const { return right - left; }
    std::int32_t height() const { return bottom - top; }
    bool operator==(const Rectangle&) const = default;
};

/// Receives the events of one dialog, on the thread that runs it.
class DialogProcedure {
public:
    virtual ~DialogProcedure() = default;
    /// Returns whether the event was handled; `result` is the message result, read back by
    /// WindowSystem::send. Words that hold pointers are pointer-sized. No exception may leave but
    /// one that is to end in the application.
    virtual bool processEvent(WindowHandle dialog, std::uint32_t message, std::uintptr_t wParam,
                              std::intptr_t lParam, std::intptr_t& result) = 0;

protected:
    DialogProcedure() = default;
    DialogProcedure(const DialogProcedure&) = default;
    DialogProcedure& operator=(const DialogProcedure&) = default;
};

/// Says whether a character may be typed into an edit item: given the item's text, the part of it
/// that is selected ([start, end), equal for none), and the character.
using CharacterFilter = std::function<bool(std::u16string_view text, std::int32_t selectionStart,
                                           std::int32_t selectionEnd, char16_t character)>;

/// The window system, at the level of a dialog and its items. All of it belongs to the thread that
/// runs the dialog; items are named by their id in the template.
///
/// The order of events. Creating a dialog makes all windows from the template and then sends
/// event::initDialog (wParam 0, lParam 0), before anything is visible. The user's acts arrive as
/// commands and notifications. What the program does itself raises no event, but for setText
/// on edit items, which raises notification::editChanged whenever the text changes, and for send(),
/// which is what it says. event::destroy comes last, when the items still stand.
///
/// Text crosses the port as plain UTF-16, since an adapter may be a library of its own. Lines in it
/// end with CR LF, in edit items of several lines too; those of one line keep what they are given.
///
/// An operation on an item that the dialog doesn't have, or on one of another kind, or without a
/// dialog (null) does nothing, and gives an empty, zero or false answer: pages leave out what they
/// don't show.
class WindowSystem {
public:
    /// The window system at hand, or null where there is none (no display, no adapter). It is
    /// looked for at the first need and then stays. An adapter makes its own application object if
    /// the host process has none, and shares it if it has. A toolkit that is bound to one thread is
    /// there for that thread alone; on others this is null.
    static WindowSystem* find();

    virtual ~WindowSystem() = default;
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;

    // ---- Dialogs -------------------------------------------------------------------------------

    // A dialog without an owner stands in the middle of the screen unless its procedure moves it.

    /// Runs a dialog from template bytes (DLGTEMPLATE and its items) modally on its owner, which
    /// may be null, until endDialog; gives the value that ended it, -1 if it couldn't be made, 0 if
    /// the user closed it by the window system's own means, or by the Escape key, while the
    /// procedure didn't end it (a close is sent as a command of the item 2 first). `resources` is
    /// where bitmaps and icons that the template names lie; it lives as long as the dialog.
    virtual std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                                   const ResourceModule& resources, WindowHandle owner,
                                   DialogProcedure& procedure) = 0;
    /// The same without a loop: shown, and destroyed by destroyDialog, by a close, or with its
    /// owner; null if it couldn't be made.
    virtual WindowHandle createModeless(std::span<const std::byte> dialogTemplate,
                                        const ResourceModule& resources, WindowHandle owner,
                                        DialogProcedure& procedure) = 0;
    /// Ends a modal dialog when the event at hand is done; validation has passed.
    virtual void endDialog(WindowHandle dialog, std::intptr_t value) = 0;
    virtual void destroyDialog(WindowHandle dialog) = 0;
    /// Delivers a message to the dialog's procedure, now, and gives the message result.
    virtual std::intptr_t send(WindowHandle dialog, std::uint32_t message, std::uintptr_t wParam,
                               std::intptr_t lParam) = 0;
    /// Tells the sheet that holds the dialog, if any, that something changed.
    virtual void reportChanged(WindowHandle dialog) = 0;

    virtual void setCaption(WindowHandle dialog, std::u16string_view text) = 0;
    /// Of any window of the application, not only a dialog.
    virtual std::u16string getCaption(WindowHandle window) = 0;
    virtual bool isVisible(WindowHandle dialog) = 0;
    /// Of a dialog on the screen, its frame included, and the inner area, from (0, 0).
    virtual Rectangle getWindowRectangle(WindowHandle dialog) = 0;
    virtual Rectangle getClientRectangle(WindowHandle dialog) = 0;
    virtual void moveWindow(WindowHandle dialog, const Rectangle& place) = 0;
    /// What of the screen is free for windows.
    virtual Rectangle getWorkArea(WindowHandle dialog) = 0;
    /// Dialog units of this dialog's font as pixels.
    virtual Rectangle mapDialogUnits(WindowHandle dialog, const Rectangle& units) = 0;

    // ---- Any item ------------------------------------------------------------------------------

    /// An item as it stands in the dialog, in the order of the template.
    struct Item {
        std::uint16_t id = 0;
        Rectangle place; // in the dialog's inner area
        /// A button whose style has one of its three lowest bits set: a group box, check box or
        /// radio button, also a default or an owner-drawn button, but no plain one.
        bool isMarkedButton = false;
    };
    virtual std::vector<Item> getItems(WindowHandle dialog) = 0;
    virtual bool hasItem(WindowHandle dialog, std::uint16_t item) = 0;
    /// Moves the item at an index of getItems, since labels may share an id.
    virtual void moveItem(WindowHandle dialog, std::size_t index, const Rectangle& place) = 0;
    virtual void showItem(WindowHandle dialog, std::uint16_t item, bool isShown) = 0;
    virtual bool isItemShown(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void enableItem(WindowHandle dialog, std::uint16_t item, bool isEnabled) = 0;
    virtual bool isItemEnabled(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void focusItem(WindowHandle dialog, std::uint16_t item) = 0;
    /// Takes an item away for good.
    virtual void removeItem(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void setText(WindowHandle dialog, std::uint16_t item, std::u16string_view text) = 0;
    virtual std::u16string getText(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void setToolTip(WindowHandle dialog, std::uint16_t item, std::u16string_view text) = 0;
    /// Keeps a number with an item under a name, for programs that look at the dialog from outside:
    /// a window property, until the dialog's end. Does nothing where windows have none.
    virtual void setProperty(WindowHandle /*dialog*/, std::uint16_t /*item*/,
                             std::u16string_view /*name*/, std::uintptr_t /*value*/) {}

    // ---- Edit items ----------------------------------------------------------------------------

    /// How much the user can enter, in UTF-16 units: of what would go beyond, as many whole
    /// characters as there is room for. 0 for as much as the window system takes.
    virtual void setTextLimit(WindowHandle dialog, std::uint16_t item, std::uint32_t units) = 0;
    /// Asked for each character that is typed or pasted, for one of two units twice, and takes both
    /// or none; what it refuses is dropped in silence. Backspace, Escape and the keys of the
    /// keyboard's own editing are never refused. False if the window system can't do it.
    virtual bool setCharacterFilter(WindowHandle dialog, std::uint16_t item,
                                    CharacterFilter filter) = 0;
    virtual void selectText(WindowHandle dialog, std::uint16_t item, std::int32_t start,
                            std::int32_t end) = 0;
    /// Lets a read-only edit item look like part of the page.
    virtual void setTransparent(WindowHandle dialog, std::uint16_t item) = 0;

    // ---- Buttons, check boxes and radio buttons ------------------------------------------------

    /// Makes a push button the one that Enter presses, in place of the one that was.
    virtual void setDefaultButton(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void setChecked(WindowHandle dialog, std::uint16_t item, bool isChecked) = 0;
    virtual bool isChecked(WindowHandle dialog, std::uint16_t item) = 0;

    // ---- Combo boxes and list boxes ------------------------------------------------------------

    virtual void clearList(WindowHandle dialog, std::uint16_t item) = 0;
    /// `position` -1 appends. Gives the index.
    virtual std::int32_t addToList(WindowHandle dialog, std::uint16_t item,
                                   std::u16string_view text, std::uintptr_t value,
                                   std::int32_t position) = 0;
    virtual void removeFromList(WindowHandle dialog, std::uint16_t item, std::int32_t index) = 0;
    virtual std::int32_t getListCount(WindowHandle dialog, std::uint16_t item) = 0;
    /// -1 for none.
    virtual std::int32_t getSelected(WindowHandle dialog, std::uint16_t item) = 0;
    virtual void select(WindowHandle dialog, std::uint16_t item, std::int32_t index) = 0;
    virtual std::u16string getListText(WindowHandle dialog, std::uint16_t item,
                                       std::int32_t index) = 0;
    virtual void setListText(WindowHandle dialog, std::uint16_t item, std::int32_t index,
                             std::u16string_view text) = 0;
    virtual std::uintptr_t getListValue(WindowHandle dialog, std::uint16_t item,
                                        std::int32_t index) = 0;

    // ---- List views ----------------------------------------------------------------------------

    enum class ListViewStyle { icons, details, checkedDetails };
    virtual void setListViewStyle(WindowHandle dialog, std::uint16_t item, ListViewStyle style) = 0;
    /// `width` in pixels.
    virtual void addColumn(WindowHandle dialog, std::uint16_t item, std::u16string_view title,
                           std::int32_t width) = 0;
    /// `icon` is an icon resource, 0 for none. Gives the row.
    virtual std::int32_t addRow(WindowHandle dialog, std::uint16_t item, std::u16string_view text,
                                std::uint32_t icon, std::uintptr_t value) = 0;
    virtual void setCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                         std::int32_t column, std::u16string_view text) = 0;
    virtual std::u16string getCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                   std::int32_t column) = 0;
    virtual void removeRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) = 0;
    virtual void clearRows(WindowHandle dialog, std::uint16_t item) = 0;
    virtual std::int32_t getRowCount(WindowHandle dialog, std::uint16_t item) = 0;
    virtual std::uintptr_t getRowValue(WindowHandle dialog, std::uint16_t item,
                                       std::int32_t row) = 0;
    virtual std::vector<std::int32_t> getSelectedRows(WindowHandle dialog, std::uint16_t item) = 0;
    /// Selects this row alone; -1 for none.
    virtual void selectRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) = 0;
    virtual void setRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                               bool isChecked) = 0;
    virtual bool isRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row) = 0;

    // ---- Sliders, scroll bars and spins --------------------------------------------------------

    // A step moves a spin's position too, within its range, unless the message result of its
    // notification::spinStep is not 0. The text of its buddy follows if its style says so.

    virtual void setRange(WindowHandle dialog, std::uint16_t item, std::int32_t lower,
                          std::int32_t upper) = 0;
    virtual void setPosition(WindowHandle dialog, std::uint16_t item, std::int32_t position) = 0;
    virtual std::int32_t getPosition(WindowHandle dialog, std::uint16_t item) = 0;

    // ---- Pictures ------------------------------------------------------------------------------

    /// Shows a bitmap resource in a static item; what has the colour of its top left pixel stays
    /// out. 0 shows none. `clearsGround`: unless it is set, what was shown there before may stay
    /// under the bitmap until the item is drawn again.
    virtual void setBitmap(WindowHandle dialog, std::uint16_t item, std::uint32_t bitmap,
                           bool clearsGround) = 0;
    /// Draws a bitmap resource, masked likewise, during event::drawItem.
    virtual void drawBitmap(WindowHandle dialog, const DrawRequest& request,
                            std::uint32_t bitmap) = 0;

    // ---- Beside dialogs ------------------------------------------------------------------------

    /// As platform::showMessageBox, but 0 if it couldn't be shown or ended without an answer.
    virtual std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body,
                                        std::u16string_view title, std::uint32_t flags) = 0;

    struct FileQuestion {
        std::u16string title;
        std::u16string filterName;    // such as "Job tickets"
        std::u16string filterPattern; // such as "*.xml"
        std::u16string extension;     // appended to a name without one, no dot
        std::u16string fileName;      // proposed
    };
    /// Nothing if the user gave up.
    virtual std::optional<std::u16string> askForOpenFile(WindowHandle owner,
                                                         const FileQuestion& question) = 0;
    virtual std::optional<std::u16string> askForSaveFile(WindowHandle owner,
                                                         const FileQuestion& question) = 0;
    /// Opens the help file beside the library at a context; false if there is no way to.
    virtual bool showHelp(WindowHandle owner, std::u16string_view helpFile,
                          std::uint32_t context) = 0;

    /// For tests and documents: writes the dialog as it looks to a PNG or BMP file.
    virtual bool saveScreenshot(WindowHandle dialog, std::u16string_view fileName) = 0;

protected:
    WindowSystem() = default;
};

} // namespace zent::platform
