#include "plugin_ui/Controls/ListViewUIControl.h"

namespace zent {

using platform::notification::listViewActivated;
using platform::notification::listViewChanged;

void ListViewUIControl::setStyle(platform::RowsItem::Style style) { item().setStyle(style); }

void ListViewUIControl::addColumn(const CXString& title, std::int32_t width) {
    item().addColumn(title, width);
}

std::int32_t ListViewUIControl::addRow(const CXString& text, std::uintptr_t value,
                                       std::uint32_t icon) {
    return item().addRow(text, icon, value);
}

void ListViewUIControl::setCell(std::int32_t row, std::int32_t column, const CXString& text) {
    item().setCell(row, column, text);
}

void ListViewUIControl::removeRow(std::int32_t row) { item().removeRow(row); }

void ListViewUIControl::clear() { item().clearRows(); }

std::int32_t ListViewUIControl::getRowCount() const { return item().getRowCount(); }

std::uintptr_t ListViewUIControl::getRowValue(std::int32_t row) const {
    return item().getRowValue(row);
}

std::vector<std::int32_t> ListViewUIControl::getSelectedRows() const {
    return item().getSelectedRows();
}

void ListViewUIControl::selectRow(std::int32_t row) { item().selectRow(row); }

bool ListViewUIControl::isRowChecked(std::int32_t row) const { return item().isRowChecked(row); }

void ListViewUIControl::setRowChecked(std::int32_t row, bool isChecked) {
    item().setRowChecked(row, isChecked);
}

bool ListViewUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (message.getMessage() != platform::event::notify || message.getItem() != getItemId()) {
        return false;
    }
    const auto& event = *message.getObject<const platform::Notification>();
    if (event.code != listViewChanged && event.code != listViewActivated) {
        return false;
    }
    m_isActivation = event.code == listViewActivated;
    notifyObservers();
    return true;
}

bool ListViewUIControl::onLock(const DialogMessage& message, std::intptr_t& result) {
    return processChildren(message, result);
}

} // namespace zent
