#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Dialog.h"
#include "platform/ResourceModule.h"

namespace zent::platform {

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
    virtual Dialog* createModeless(std::span<const std::byte> dialogTemplate,
                                   const ResourceModule& resources, WindowHandle owner,
                                   DialogProcedure& procedure) = 0;
    /// The dialog that a window is; for any other, one that isn't there.
    virtual Dialog& getDialog(WindowHandle /*window*/) { return none<Dialog>(); }

    /// Ends a modal dialog when the event at hand is done; validation has passed.
    virtual void endDialog(WindowHandle dialog, std::intptr_t value) {
        getDialog(dialog).end(value);
    }
    virtual void destroyDialog(WindowHandle dialog) { getDialog(dialog).destroy(); }
    /// Delivers a message to the dialog's procedure, now, and gives the message result.
    virtual std::intptr_t send(WindowHandle dialog, std::uint32_t message, std::uintptr_t wParam,
                               std::intptr_t lParam) {
        return getDialog(dialog).send(message, wParam, lParam);
    }
    /// Tells the sheet that holds the dialog, if any, that something changed.
    virtual void reportChanged(WindowHandle dialog) { getDialog(dialog).reportChanged(); }

    virtual void setCaption(WindowHandle dialog, std::u16string_view text) {
        getDialog(dialog).setCaption(text);
    }
    /// Of any window of the application, not only a dialog.
    virtual std::u16string getCaption(WindowHandle window) = 0;
    virtual bool isVisible(WindowHandle dialog) { return getDialog(dialog).isVisible(); }
    /// Of a dialog on the screen, its frame included, and the inner area, from (0, 0).
    virtual Rectangle getWindowRectangle(WindowHandle dialog) {
        return getDialog(dialog).getWindowRectangle();
    }
    virtual Rectangle getClientRectangle(WindowHandle dialog) {
        return getDialog(dialog).getClientRectangle();
    }
    virtual void moveWindow(WindowHandle dialog, const Rectangle& place) {
        getDialog(dialog).moveTo(place);
    }
    /// What of the screen is free for windows.
    virtual Rectangle getWorkArea(WindowHandle dialog) { return getDialog(dialog).getWorkArea(); }
    /// Dialog units of this dialog's font as pixels.
    virtual Rectangle mapDialogUnits(WindowHandle dialog, const Rectangle& units) {
        return getDialog(dialog).mapDialogUnits(units);
    }

    // ---- Any item ------------------------------------------------------------------------------

    /// An item as it stands in the dialog, in the order of the template.
    struct Item {
        std::uint16_t id = 0;
        Rectangle place; // in the dialog's inner area
        /// A button whose style has one of its three lowest bits set: a group box, check box or
        /// radio button, also a default or an owner-drawn button, but no plain one.
        bool isMarkedButton = false;
    };
    virtual std::vector<Item> getItems(WindowHandle dialog) {
        std::vector<Item> items;
        for (const DialogItem* const item : getDialog(dialog).getItems()) {
            items.push_back({item->getId(), item->getPlace(), item->isMarkedButton()});
        }
        return items;
    }
    virtual bool hasItem(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<DialogItem>(item).isThere();
    }
    /// Moves the item at an index of getItems, since labels may share an id.
    virtual void moveItem(WindowHandle dialog, std::size_t index, const Rectangle& place) {
        getDialog(dialog).getItems().at(index)->moveTo(place);
    }
    virtual void showItem(WindowHandle dialog, std::uint16_t item, bool isShown) {
        getDialog(dialog).item<DialogItem>(item).show(isShown);
    }
    virtual bool isItemShown(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<DialogItem>(item).isShown();
    }
    virtual void enableItem(WindowHandle dialog, std::uint16_t item, bool isEnabled) {
        getDialog(dialog).item<DialogItem>(item).enable(isEnabled);
    }
    virtual bool isItemEnabled(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<DialogItem>(item).isEnabled();
    }
    virtual void focusItem(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<DialogItem>(item).focus();
    }
    /// Takes an item away for good.
    virtual void removeItem(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<DialogItem>(item).remove();
    }
    virtual void setText(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
        getDialog(dialog).item<DialogItem>(item).setText(text);
    }
    virtual std::u16string getText(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<DialogItem>(item).getText();
    }
    virtual void setToolTip(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
        getDialog(dialog).item<DialogItem>(item).setToolTip(text);
    }
    /// Keeps a number with an item under a name, for programs that look at the dialog from outside:
    /// a window property, until the dialog's end. Does nothing where windows have none.
    virtual void setProperty(WindowHandle dialog, std::uint16_t item, std::u16string_view name,
                             std::uintptr_t value) {
        getDialog(dialog).item<DialogItem>(item).setProperty(name, value);
    }

    // ---- Edit items ----------------------------------------------------------------------------

    /// How much the user can enter, in UTF-16 units: of what would go beyond, as many whole
    /// characters as there is room for. 0 for as much as the window system takes.
    virtual void setTextLimit(WindowHandle dialog, std::uint16_t item, std::uint32_t units) {
        getDialog(dialog).item<TextItem>(item).setLimit(units);
    }
    /// Asked for each character that is typed or pasted, for one of two units twice, and takes both
    /// or none; what it refuses is dropped in silence. Backspace, Escape and the keys of the
    /// keyboard's own editing are never refused. False if the window system can't do it.
    virtual bool setCharacterFilter(WindowHandle dialog, std::uint16_t item,
                                    CharacterFilter filter) {
        return getDialog(dialog).item<TextItem>(item).setFilter(std::move(filter));
    }
    virtual void selectText(WindowHandle dialog, std::uint16_t item, std::int32_t start,
                            std::int32_t end) {
        getDialog(dialog).item<TextItem>(item).selectText(start, end);
    }
    /// Lets a read-only edit item look like part of the page.
    virtual void setTransparent(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<TextItem>(item).setTransparent();
    }

    // ---- Buttons, check boxes and radio buttons ------------------------------------------------

    /// Makes a push button the one that Enter presses, in place of the one that was.
    virtual void setDefaultButton(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<ButtonItem>(item).makeDefault();
    }
    virtual void setChecked(WindowHandle dialog, std::uint16_t item, bool isChecked) {
        getDialog(dialog).item<ButtonItem>(item).setChecked(isChecked);
    }
    virtual bool isChecked(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<ButtonItem>(item).isChecked();
    }

    // ---- Combo boxes and list boxes ------------------------------------------------------------

    virtual void clearList(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<ChoiceItem>(item).clear();
    }
    /// `position` -1 appends. Gives the index.
    virtual std::int32_t addToList(WindowHandle dialog, std::uint16_t item,
                                   std::u16string_view text, std::uintptr_t value,
                                   std::int32_t position) {
        return getDialog(dialog).item<ChoiceItem>(item).add(text, value, position);
    }
    virtual void removeFromList(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
        getDialog(dialog).item<ChoiceItem>(item).removeEntry(index);
    }
    virtual std::int32_t getListCount(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<ChoiceItem>(item).getCount();
    }
    /// -1 for none.
    virtual std::int32_t getSelected(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<ChoiceItem>(item).getSelected();
    }
    virtual void select(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
        getDialog(dialog).item<ChoiceItem>(item).select(index);
    }
    virtual std::u16string getListText(WindowHandle dialog, std::uint16_t item,
                                       std::int32_t index) {
        return getDialog(dialog).item<ChoiceItem>(item).getEntryText(index);
    }
    virtual void setListText(WindowHandle dialog, std::uint16_t item, std::int32_t index,
                             std::u16string_view text) {
        getDialog(dialog).item<ChoiceItem>(item).setEntryText(index, text);
    }
    virtual std::uintptr_t getListValue(WindowHandle dialog, std::uint16_t item,
                                        std::int32_t index) {
        return getDialog(dialog).item<ChoiceItem>(item).getEntryValue(index);
    }

    // ---- List views ----------------------------------------------------------------------------

    using ListViewStyle = RowsItem::Style;
    virtual void setListViewStyle(WindowHandle dialog, std::uint16_t item, ListViewStyle style) {
        getDialog(dialog).item<RowsItem>(item).setStyle(style);
    }
    /// `width` in pixels.
    virtual void addColumn(WindowHandle dialog, std::uint16_t item, std::u16string_view title,
                           std::int32_t width) {
        getDialog(dialog).item<RowsItem>(item).addColumn(title, width);
    }
    /// `icon` is an icon resource, 0 for none. Gives the row.
    virtual std::int32_t addRow(WindowHandle dialog, std::uint16_t item, std::u16string_view text,
                                std::uint32_t icon, std::uintptr_t value) {
        return getDialog(dialog).item<RowsItem>(item).addRow(text, icon, value);
    }
    virtual void setCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                         std::int32_t column, std::u16string_view text) {
        getDialog(dialog).item<RowsItem>(item).setCell(row, column, text);
    }
    virtual std::u16string getCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                   std::int32_t column) {
        return getDialog(dialog).item<RowsItem>(item).getCell(row, column);
    }
    virtual void removeRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
        getDialog(dialog).item<RowsItem>(item).removeRow(row);
    }
    virtual void clearRows(WindowHandle dialog, std::uint16_t item) {
        getDialog(dialog).item<RowsItem>(item).clearRows();
    }
    virtual std::int32_t getRowCount(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<RowsItem>(item).getRowCount();
    }
    virtual std::uintptr_t getRowValue(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
        return getDialog(dialog).item<RowsItem>(item).getRowValue(row);
    }
    virtual std::vector<std::int32_t> getSelectedRows(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<RowsItem>(item).getSelectedRows();
    }
    /// Selects this row alone; -1 for none.
    virtual void selectRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
        getDialog(dialog).item<RowsItem>(item).selectRow(row);
    }
    virtual void setRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                               bool isChecked) {
        getDialog(dialog).item<RowsItem>(item).setRowChecked(row, isChecked);
    }
    virtual bool isRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
        return getDialog(dialog).item<RowsItem>(item).isRowChecked(row);
    }

    // ---- Sliders, scroll bars and spins --------------------------------------------------------

    // A step moves a spin's position too, within its range, unless the message result of its
    // notification::spinStep is not 0. The text of its buddy follows if its style says so.

    virtual void setRange(WindowHandle dialog, std::uint16_t item, std::int32_t lower,
                          std::int32_t upper) {
        getDialog(dialog).item<RangeItem>(item).setRange(lower, upper);
    }
    virtual void setPosition(WindowHandle dialog, std::uint16_t item, std::int32_t position) {
        getDialog(dialog).item<RangeItem>(item).setPosition(position);
    }
    virtual std::int32_t getPosition(WindowHandle dialog, std::uint16_t item) {
        return getDialog(dialog).item<RangeItem>(item).getPosition();
    }

    // ---- Pictures ------------------------------------------------------------------------------

    /// Shows a bitmap resource in a static item; what has the colour of its top left pixel stays
    /// out. 0 shows none. `clearsGround`: unless it is set, what was shown there before may stay
    /// under the bitmap until the item is drawn again.
    virtual void setBitmap(WindowHandle dialog, std::uint16_t item, std::uint32_t bitmap,
                           bool clearsGround) {
        getDialog(dialog).item<PictureItem>(item).setBitmap(bitmap, clearsGround);
    }
    /// Draws a bitmap resource, masked likewise, during event::drawItem.
    virtual void drawBitmap(WindowHandle /*dialog*/, const DrawRequest& request,
                            std::uint32_t bitmap) {
        request.drawBitmap(bitmap);
    }

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
    virtual bool saveScreenshot(WindowHandle /*dialog*/, std::u16string_view /*fileName*/) {
        return false;
    }

protected:
    WindowSystem() = default;
};

} // namespace zent::platform
