#pragma once

#include <functional>
#include <vector>

#include "platform/DialogItem.h"

// The kinds of items of a dialog, with what each alone can do.

namespace zent::platform {

/// A push button, check box, radio button or owner-drawn button.
class ButtonItem : public virtual DialogItem {
public:
    virtual bool isChecked() const { return false; }
    /// Sets the state of this button. It leaves the other buttons of its group alone.
    virtual void setChecked(bool /*isChecked*/) {}
    /// Whether Enter presses this push button unless another one has the focus.
    virtual bool isDefault() const { return false; }
    /// Makes this the default button, in place of the one that was.
    virtual void makeDefault() {}
};

/// Says whether a character may be typed into an edit item: given the item's text, the part of it
/// that is selected ([start, end), equal for none), and the character.
using CharacterFilter = std::function<bool(std::u16string_view text, std::int32_t selectionStart,
                                           std::int32_t selectionEnd, char16_t character)>;

/// A text that the user can change: an edit item of one line, or of several.
class TextItem : public virtual DialogItem {
public:
    /// How much the user can enter, in UTF-16 units: of what would go beyond, as many whole
    /// characters as there is room for. 0 for as much as the window system takes.
    virtual void setLimit(std::uint32_t /*units*/) {}
    /// Sets the filter that is asked for each character that is typed or pasted. For a character of
    /// two units it is asked twice, and both are taken or none. What it refuses is dropped in
    /// silence. Backspace, Escape and the keys of the keyboard's own editing are never refused.
    /// False if the window system can't do it.
    virtual bool setFilter(const CharacterFilter& /*filter*/) { return true; }
    /// Selects [start, end) in UTF-16 units of the text; an `end` of -1 is the end of the text.
    virtual void selectText(std::int32_t /*start*/, std::int32_t /*end*/) {}
    /// Lets a read-only item look like part of the page.
    virtual void setTransparent() {}
};

/// A combo box or list box: a list of texts, each with a value, one of them selected. An index of
/// -1 is none.
class ChoiceItem : public virtual DialogItem {
public:
    virtual void clear() {}
    /// `position` -1 appends, or leaves it to the order of a sorted list. Gives the index.
    virtual std::int32_t add(std::u16string_view /*text*/, std::uintptr_t /*value*/,
                             std::int32_t /*position*/) {
        return -1;
    }
    virtual void removeEntry(std::int32_t /*index*/) {}
    virtual std::int32_t getCount() const { return 0; }
    virtual std::int32_t getSelected() const { return -1; }
    virtual void select(std::int32_t /*index*/) {}
    virtual std::u16string getEntryText(std::int32_t /*index*/) const { return {}; }
    virtual void setEntryText(std::int32_t /*index*/, std::u16string_view /*text*/) {}
    virtual std::uintptr_t getEntryValue(std::int32_t /*index*/) const { return 0; }
};

/// A list view: rows of cells, each row with a value and perhaps an icon and a mark. A row of -1 is
/// none.
class RowsItem : public virtual DialogItem {
public:
    /// Large icons above their texts; small ones before them, one below another; columns with small
    /// icons, with a check mark each or without.
    enum class Style { icons, list, details, checkedDetails };

    /// May be called at any time. Rows stay as they are, apart from their marks.
    virtual void setStyle(Style /*style*/) {}
    /// The distances from one icon to the next, in pixels.
    struct Spacing {
        std::int32_t across = 0;
        std::int32_t down = 0;
        bool operator==(const Spacing&) const = default;
    };
    /// The spacing of the style of icons, which the list view must have.
    virtual Spacing getIconSpacing() const { return {}; }
    virtual void setIconSpacing(const Spacing& /*spacing*/) {}
    /// `width` in pixels.
    virtual void addColumn(std::u16string_view /*title*/, std::int32_t /*width*/) {}
    /// `icon` is an icon resource, of which the image of each size is shown; 0 for none. Gives the
    /// row.
    virtual std::int32_t addRow(std::u16string_view /*text*/, std::uint32_t /*icon*/,
                                std::uintptr_t /*value*/) {
        return -1;
    }
    virtual std::u16string getCell(std::int32_t /*row*/, std::int32_t /*column*/) const {
        return {};
    }
    virtual void setCell(std::int32_t /*row*/, std::int32_t /*column*/,
                         std::u16string_view /*text*/) {}
    virtual void removeRow(std::int32_t /*row*/) {}
    virtual void clearRows() {}
    virtual std::int32_t getRowCount() const { return 0; }
    virtual std::uintptr_t getRowValue(std::int32_t /*row*/) const { return 0; }
    virtual std::vector<std::int32_t> getSelectedRows() const { return {}; }
    /// Selects this row alone, focuses it and brings it into view.
    virtual void selectRow(std::int32_t /*row*/) {}
    /// The row from which the arrow keys go on.
    virtual std::int32_t getFocusedRow() const { return -1; }
    virtual void focusRow(std::int32_t /*row*/) {}
    virtual void ensureRowVisible(std::int32_t /*row*/) {}
    virtual bool isRowChecked(std::int32_t /*row*/) const { return false; }
    virtual void setRowChecked(std::int32_t /*row*/, bool /*isChecked*/) {}
};

/// A slider, scroll bar or spin: a whole number within a range. A step moves a spin's position too,
/// within its range, unless the message result of its notification::spinStep is not 0. The text of
/// its buddy follows if its style says so.
class RangeItem : public virtual DialogItem {
public:
    virtual void setRange(std::int32_t /*lower*/, std::int32_t /*upper*/) {}
    virtual std::int32_t getPosition() const { return 0; }
    virtual void setPosition(std::int32_t /*position*/) {}
};

/// A static item: a label, or a place for a picture.
class PictureItem : public virtual DialogItem {
public:
    /// Shows a bitmap resource; what has the colour of its top left pixel stays out. 0 shows none.
    /// `clearsGround`: unless it is set, what was shown there before may stay under the bitmap
    /// until the item is drawn again.
    virtual void setBitmap(std::uint32_t /*bitmap*/, bool /*clearsGround*/) {}
    /// From now on event::mouseMoved and event::mousePressed tell of the mouse on the item.
    virtual void watchMouse() {}
};

} // namespace zent::platform
