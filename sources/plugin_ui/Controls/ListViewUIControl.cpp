#include "plugin_ui/Controls/ListViewUIControl.h"

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

using platform::notification::listViewActivated;
using platform::notification::listViewChanged;

void ListViewUIControl::setStyle(platform::WindowSystem::ListViewStyle style) {
    windowSystem().setListViewStyle(getWindow(), getItem(), style);
}

void ListViewUIControl::addColumn(const CXString& title, std::int32_t width) {
    windowSystem().addColumn(getWindow(), getItem(), title, width);
}

std::int32_t ListViewUIControl::addRow(const CXString& text, std::uint32_t value,
                                       std::uint32_t icon) {
    return hasWindow() ? windowSystem().addRow(getWindow(), getItem(), text, icon, value) : -1;
}

void ListViewUIControl::setCell(std::int32_t row, std::int32_t column, const CXString& text) {
    windowSystem().setCell(getWindow(), getItem(), row, column, text);
}

void ListViewUIControl::removeRow(std::int32_t row) {
    windowSystem().removeRow(getWindow(), getItem(), row);
}

void ListViewUIControl::clear() { windowSystem().clearRows(getWindow(), getItem()); }

std::int32_t ListViewUIControl::getRowCount() const {
    return windowSystem().getRowCount(getWindow(), getItem());
}

std::uint32_t ListViewUIControl::getRowValue(std::int32_t row) const {
    return static_cast<std::uint32_t>(windowSystem().getRowValue(getWindow(), getItem(), row));
}

std::vector<std::int32_t> ListViewUIControl::getSelectedRows() const {
    return windowSystem().getSelectedRows(getWindow(), getItem());
}

void ListViewUIControl::selectRow(std::int32_t row) {
    windowSystem().selectRow(getWindow(), getItem(), row);
}

bool ListViewUIControl::isRowChecked(std::int32_t row) const {
    return windowSystem().isRowChecked(getWindow(), getItem(), row);
}

void ListViewUIControl::setRowChecked(std::int32_t row, bool isChecked) {
    windowSystem().setRowChecked(getWindow(), getItem(), row, isChecked);
}

bool ListViewUIControl::processControlMessage(const DialogMessage& message,
                                              std::intptr_t& /*result*/) {
    if (message.getMessage() != platform::event::notify || message.getItem() != getItem()) {
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
