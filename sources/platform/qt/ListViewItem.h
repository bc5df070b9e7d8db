#pragma once

#include <vector>

#include <QItemSelectionModel>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTreeView>

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// Rows of cells, shown as a list of icons or as a table. Both views look at one model and one
/// selection.
class ListViewItem final : public Item, public RowsItem {
public:
    ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures);

    void setStyle(Style style) override;
    void addColumn(std::u16string_view title, int width) override;
    int addRow(std::u16string_view text, std::uint32_t icon, std::uintptr_t value) override;
    std::u16string getCell(int row, int column) const override;
    void setCell(int row, int column, std::u16string_view text) override;
    void removeRow(int row) override;
    void clearRows() override;
    Spacing getIconSpacing() const override { return m_spacing; }
    void setIconSpacing(const Spacing& spacing) override;
    int getRowCount() const override { return m_model.rowCount(); }
    std::uintptr_t getRowValue(int row) const override;
    std::vector<std::int32_t> getSelectedRows() const override;
    void selectRow(int row) override;
    int getFocusedRow() const override { return m_selection.currentIndex().row(); }
    void focusRow(int row) override;
    void ensureRowVisible(int row) override;
    bool isRowChecked(int row) const override;
    void setRowChecked(int row, bool isChecked) override;

private:
    class Selection;

    ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures,
                 QStackedWidget& stack);
    void setUpTable();
    void showIcons();
    void showList();
    void tell(std::int32_t code, int row, int column, std::uint32_t newState = 0);
    void tellChanging(const QItemSelection& selection, QItemSelectionModel::SelectionFlags command,
                      int focusedRow);
    void tellSelection(const QItemSelection& now, const QItemSelection& before);
    QStandardItem* firstCell(int row) const { return m_model.item(row, 0); }
    void showMark(QStandardItem& cell) const;

    Pictures& m_pictures;
    QStackedWidget& m_stack;
    QStandardItemModel& m_model;
    QItemSelectionModel& m_selection;
    QTreeView& m_table;
    QListView& m_icons;
    Spacing m_spacing{75, 75};
    int m_titledColumns = 0;
    bool m_hasMarks = false;
    bool m_isProgramsChange = false;
};

} // namespace zent::platform::qt
