#include "platform/qt/ListViewItem.h"

#include <algorithm>
#include <set>

#include <QHeaderView>
#include <QScopedValueRollback>

#include "platform/qt/Dialog.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint32_t isTable = 1;
constexpr std::uint32_t kindBits = 3;
constexpr std::uint32_t selectsOne = 4;
constexpr std::uint32_t noHeader = 0x4000;

constexpr int valueRole = Qt::UserRole;

/// The rows that will be selected once a command is done.
std::set<int> applySelection(std::set<int> rows, const QItemSelection& selection,
                             QItemSelectionModel::SelectionFlags command) {
    if (command.testFlag(QItemSelectionModel::Clear)) {
        rows.clear();
    }
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const bool isToggled = command.testFlag(QItemSelectionModel::Toggle);
            if (command.testFlag(QItemSelectionModel::Deselect) ||
                (isToggled && rows.contains(row))) {
                rows.erase(row);
            } else if (isToggled || command.testFlag(QItemSelectionModel::Select)) {
                rows.insert(row);
            }
        }
    }
    return rows;
}

} // namespace

/// A selection that reports which rows it is about to change.
class ListViewItem::Selection final : public QItemSelectionModel {
public:
    Selection(QStandardItemModel& model, QObject& parent, ListViewItem& item)
        : QItemSelectionModel(&model, &parent), m_item(item) {}

    using QItemSelectionModel::select;
    void select(const QItemSelection& selection, SelectionFlags command) override {
        m_item.tellChanging(selection, command,
                            m_comingRow >= 0 ? m_comingRow : currentIndex().row());
        QItemSelectionModel::select(selection, command);
    }
    /// The base class calls select() before the row is the current one, so that it is kept for
    /// select().
    void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override {
        const QScopedValueRollback guard(m_comingRow, index.row());
        QItemSelectionModel::setCurrentIndex(index, command);
    }

private:
    ListViewItem& m_item;
    int m_comingRow = -1;
};

ListViewItem::ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures)
    : ListViewItem(dialog, source, pictures, *new QStackedWidget(&dialog.surface())) {}

ListViewItem::ListViewItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures,
                           QStackedWidget& stack)
    : Item(dialog, source, stack), m_pictures(pictures), m_stack(stack),
      m_model(*new QStandardItemModel(&stack)), m_selection(*new Selection(m_model, stack, *this)),
      m_table(*new QTreeView(&stack)), m_icons(*new QListView(&stack)) {
    setUpTable();
    for (QAbstractItemView* const view :
         {static_cast<QAbstractItemView*>(&m_table), static_cast<QAbstractItemView*>(&m_icons)}) {
        stack.addWidget(view);
        view->setModel(&m_model);
        delete view->selectionModel(); // the view has made one of its own with the model
        view->setSelectionModel(&m_selection);
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setSelectionMode(hasStyle(selectsOne) ? QAbstractItemView::SingleSelection
                                                    : QAbstractItemView::ExtendedSelection);
        view->setTabKeyNavigation(false);
        view->setFocusPolicy(hasStyle(itemStyle::tabStop) ? Qt::StrongFocus : Qt::ClickFocus);
        QObject::connect(view, &QAbstractItemView::doubleClicked, view,
                         [this](const QModelIndex& place) {
            tell(notification::listViewActivated, place.row(), place.column());
        });
    }
    setStyle((style() & kindBits) == isTable ? Style::details : Style::icons);
    QObject::connect(&m_selection, &QItemSelectionModel::selectionChanged, &stack,
                     [this](const QItemSelection& now, const QItemSelection& before) {
        tellSelection(now, before);
    });
    QObject::connect(&m_model, &QStandardItemModel::itemChanged, &stack,
                     [this](const QStandardItem* cell) {
        tell(notification::listViewChanged, cell->row(), cell->column());
    });
}

void ListViewItem::setUpTable() {
    m_table.setRootIsDecorated(false);
    m_table.setUniformRowHeights(true);
    m_table.setAllColumnsShowFocus(true);
    m_table.setHeaderHidden(hasStyle(noHeader));
    m_table.header()->setSectionsMovable(false);
}

void ListViewItem::showIcons() {
    const int side = m_icons.style()->pixelMetric(QStyle::PM_LargeIconSize);
    m_icons.setViewMode(QListView::IconMode); // this sets other properties back, which follow
    m_icons.setIconSize(QSize(side, side));
    m_icons.setGridSize(QSize(m_spacing.across, m_spacing.down));
    m_icons.setMovement(QListView::Static);
    m_icons.setResizeMode(QListView::Adjust);
    m_icons.setWordWrap(true);
}

void ListViewItem::showList() {
    const int side = m_icons.style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icons.setViewMode(QListView::ListMode);
    m_icons.setIconSize(QSize(side, side));
    m_icons.setGridSize(QSize());
    m_icons.setWordWrap(false);
}

void ListViewItem::setIconSpacing(const Spacing& spacing) {
    m_spacing = spacing;
    if (m_icons.viewMode() == QListView::IconMode) {
        m_icons.setGridSize(QSize(spacing.across, spacing.down));
    }
}

void ListViewItem::setStyle(Style style) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    m_hasMarks = style == Style::checkedDetails;
    if (style == Style::icons) {
        showIcons();
    } else if (style == Style::list) {
        showList();
    }
    QAbstractItemView* const view = style == Style::icons || style == Style::list
                                        ? static_cast<QAbstractItemView*>(&m_icons)
                                        : static_cast<QAbstractItemView*>(&m_table);
    m_stack.setCurrentWidget(view);
    m_stack.setFocusProxy(view);
    for (int row = 0; row < m_model.rowCount(); ++row) {
        showMark(*firstCell(row));
    }
}

void ListViewItem::addColumn(std::u16string_view title, int width) {
    const int column = m_titledColumns++;
    if (m_model.columnCount() <= column) {
        m_model.setColumnCount(column + 1);
    }
    m_model.setHorizontalHeaderItem(column, new QStandardItem(toQt(title)));
    m_table.setColumnWidth(column, width);
}

int ListViewItem::addRow(std::u16string_view text, std::uint32_t icon, std::uintptr_t value) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    auto* const cell = new QStandardItem(toQt(text));
    cell->setEditable(false);
    cell->setData(static_cast<qulonglong>(value), valueRole);
    if (icon != 0) {
        cell->setIcon(m_pictures.icon(icon));
    }
    showMark(*cell);
    m_model.appendRow(cell);
    return cell->row();
}

void ListViewItem::setCell(int row, int column, std::u16string_view text) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    if (row < 0 || row >= getRowCount() || column < 0 || column >= m_model.columnCount()) {
        return;
    }
    if (m_model.item(row, column) == nullptr) {
        auto* const cell = new QStandardItem;
        cell->setEditable(false);
        m_model.setItem(row, column, cell);
    }
    m_model.item(row, column)->setText(toQt(text));
}

std::u16string ListViewItem::getCell(int row, int column) const {
    const QStandardItem* const cell = m_model.item(row, column);
    return cell != nullptr ? fromQt(cell->text()) : std::u16string();
}

void ListViewItem::removeRow(int row) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    if (row >= 0 && row < getRowCount()) {
        m_model.removeRow(row);
    }
}

void ListViewItem::clearRows() {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    m_model.removeRows(0, getRowCount());
}

std::uintptr_t ListViewItem::getRowValue(int row) const {
    const QStandardItem* const cell = firstCell(row);
    return cell != nullptr ? cell->data(valueRole).toULongLong() : 0;
}

std::vector<std::int32_t> ListViewItem::getSelectedRows() const {
    std::vector<std::int32_t> rows;
    for (const QModelIndex& place : m_selection.selectedRows()) {
        rows.push_back(place.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ListViewItem::selectRow(int row) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    const QModelIndex place = m_model.index(row, 0);
    m_selection.setCurrentIndex(place,
                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ensureRowVisible(row);
}

void ListViewItem::focusRow(int row) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    m_selection.setCurrentIndex(m_model.index(row, 0), QItemSelectionModel::NoUpdate);
}

void ListViewItem::ensureRowVisible(int row) {
    const QModelIndex place = m_model.index(row, 0);
    m_table.scrollTo(place);
    m_icons.scrollTo(place);
}

void ListViewItem::setRowChecked(int row, bool isChecked) {
    const QScopedValueRollback guard(m_isProgramsChange, true);
    QStandardItem* const cell = firstCell(row);
    if (cell != nullptr && m_hasMarks) {
        cell->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
    }
}

bool ListViewItem::isRowChecked(int row) const {
    const QStandardItem* const cell = firstCell(row);
    return cell != nullptr && cell->checkState() == Qt::Checked;
}

/// Gives a row its check box, or takes it away.
void ListViewItem::showMark(QStandardItem& cell) const {
    cell.setCheckable(m_hasMarks);
    cell.setData(m_hasMarks ? QVariant(cell.checkState()) : QVariant(), Qt::CheckStateRole);
}

void ListViewItem::tellChanging(const QItemSelection& selection,
                                QItemSelectionModel::SelectionFlags command, int focusedRow) {
    const std::vector<std::int32_t> rows = getSelectedRows();
    const std::set<int> before(rows.begin(), rows.end());
    const std::set<int> after = applySelection(before, selection, command);
    const auto tellRow = [&](int row, std::uint32_t selected) {
        tell(notification::listViewChanging, row, 0, selected | (row == focusedRow ? 1U : 0U));
    };
    for (const int row : before) {
        if (!after.contains(row)) {
            tellRow(row, 0);
        }
    }
    for (const int row : after) {
        if (!before.contains(row)) {
            tellRow(row, 2);
        }
    }
}

void ListViewItem::tellSelection(const QItemSelection& now, const QItemSelection& before) {
    // The rows that were selected are reported first, then those that are.
    for (const QItemSelection* const selection : {&before, &now}) {
        for (const QModelIndex& place : QItemSelection(*selection).indexes()) {
            if (place.column() == 0) {
                tell(notification::listViewChanged, place.row(), 0);
            }
        }
    }
}

void ListViewItem::tell(std::int32_t code, int row, int column, std::uint32_t newState) {
    if (m_isProgramsChange) {
        return;
    }
    Notification notification;
    notification.item = getId();
    notification.code = code;
    notification.row = row;
    notification.column = column;
    notification.newState = newState;
    dialog().tellNotification(notification);
}

} // namespace zent::platform::qt
