#include "platform/qt/OpenListItem.h"

#include <QSignalBlocker>

namespace zent::platform::qt {

OpenListItem::OpenListItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget,
                           QListWidget& list, bool isSorted)
    : ChoiceItem(dialog, source, widget, isSorted), m_list(list) {}

int OpenListItem::getSelected() const {
    const auto rows = m_list.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void OpenListItem::select(int index) {
    const QSignalBlocker blocker(m_list);
    m_list.setCurrentRow(isIndex(index) ? index : -1);
}

void OpenListItem::clear() {
    const QSignalBlocker blocker(m_list);
    m_list.clear();
}

/// Removes a text. If it is selected, none is afterwards: the list would select a neighbour.
void OpenListItem::removeEntry(int index) {
    const QSignalBlocker blocker(m_list);
    if (index == getSelected()) {
        m_list.setCurrentRow(-1);
    }
    if (isIndex(index)) {
        delete m_list.takeItem(index);
    }
}

QString OpenListItem::entryText(int index) const {
    return isIndex(index) ? m_list.item(index)->text() : QString();
}

void OpenListItem::showEntryText(int index, const QString& text) {
    if (isIndex(index)) {
        m_list.item(index)->setText(text);
    }
}

std::uintptr_t OpenListItem::getEntryValue(int index) const {
    return isIndex(index) ? m_list.item(index)->data(Qt::UserRole).toULongLong() : 0;
}

void OpenListItem::insert(int index, const QString& text, std::uintptr_t value) {
    const QSignalBlocker blocker(m_list);
    m_list.insertItem(index, text);
    m_list.item(index)->setData(Qt::UserRole, static_cast<qulonglong>(value));
}

} // namespace zent::platform::qt
