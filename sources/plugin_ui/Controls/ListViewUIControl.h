#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A list view, whose rows have a text in each column. It stays usable while the dialog is locked,
/// for the rows can be read. Rows live in the window, so features fill it each time the dialog
/// starts.
class ListViewUIControl : public UIControlOf<platform::RowsItem> {
public:
    explicit ListViewUIControl(std::uint16_t item) : UIControlOf(item) {}

    void setStyle(platform::RowsItem::Style style);
    /// `width` in pixels.
    void addColumn(const CXString& title, std::int32_t width);
    /// Returns the row, or -1 while there is no dialog. `icon` is an icon resource, 0 for none.
    std::int32_t addRow(const CXString& text, std::uintptr_t value, std::uint32_t icon = 0);
    void setCell(std::int32_t row, std::int32_t column, const CXString& text);
    void removeRow(std::int32_t row);
    void clear();

    std::int32_t getRowCount() const;
    std::uintptr_t getRowValue(std::int32_t row) const;
    std::vector<std::int32_t> getSelectedRows() const;
    /// With -1 no row is selected.
    void selectRow(std::int32_t row);
    bool isRowChecked(std::int32_t row) const;
    void setRowChecked(std::int32_t row, bool isChecked);
    /// Whether the notification at hand is of a double click.
    bool isActivation() const { return m_isActivation; }

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;
    bool onLock(const DialogMessage& message, std::intptr_t& result) override;

private:
    bool m_isActivation = false;
};

} // namespace zent
