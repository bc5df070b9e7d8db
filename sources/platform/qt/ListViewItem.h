#pragma once

#include <vector>

#include <QItemSelectionModel>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTreeView>

#include "platform/WindowSystem.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// Rows of cells, shown as icons or as a table. Both views look at one model and one selection.
class ListViewItem final : public Item {
public:
    ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures);

    void setListViewStyle(WindowSystem::ListViewStyle style);
    void addColumn(const QString& title, int width);
    int addRow(const QString& text, std::uint32_t icon, std::uintptr_t value);
    void setCell(int row, int column, const QString& text);
    QString cell(int row, int column) const;
    void removeRow(int row);
    void clearRows();
    int rowCount() const { return m_model.rowCount(); }
    std::uintptr_t rowValue(int row) const;
    std::vector<std::int32_t> selectedRows() const;
    void selectRow(int row);
    void setRowChecked(int row, bool isChecked);
    bool isRowChecked(int row) const;

private:
    ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures,
                 QStackedWidget& stack);
    void setUpIcons();
    void setUpTable();
    void tell(std::int32_t code, int row, int column);
    void tellSelection(const QItemSelection& now, const QItemSelection& before);
    QStandardItem* firstCell(int row) const { return m_model.item(row, 0); }
    void showMark(QStandardItem& cell) const;

    Pictures& m_pictures;
    QStackedWidget& m_stack;
    QStandardItemModel& m_model;
    QItemSelectionModel& m_selection;
    QTreeView& m_table;
    QListView& m_icons;
    int m_titledColumns = 0;
    bool m_hasMarks = false;
    bool m_isProgramsChange = false;
};

} // namespace zent::platform::qt
