#include "platform/qt/QtWindowSystem.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include "platform/qt/ButtonItem.h"
#include "platform/qt/Caption.h"
#include "platform/qt/Dialog.h"
#include "platform/qt/EditItem.h"
#include "platform/qt/FileQuestion.h"
#include "platform/qt/ListItem.h"
#include "platform/qt/ListViewItem.h"
#include "platform/qt/MessageBox.h"
#include "platform/qt/RangeItem.h"
#include "platform/qt/StaticItem.h"
#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

using AnyItem = zent::platform::qt::Item;

/// Does something with a dialog, or nothing if it isn't there (any more).
template <typename Operation>
auto onDialog(WindowHandle handle, const Operation& operation) {
    using Result = std::invoke_result_t<Operation, Dialog&>;
    Dialog* const dialog = Dialog::find(handle);
    if constexpr (std::is_void_v<Result>) {
        if (dialog != nullptr) {
            operation(*dialog);
        }
    } else {
        return dialog != nullptr ? operation(*dialog) : Result{};
    }
}

/// Does something with an item of a kind, or nothing if there is none.
template <typename Kind, typename Operation>
auto onItem(WindowHandle handle, std::uint16_t id, const Operation& operation) {
    using Result = std::invoke_result_t<Operation, Kind&>;
    Dialog* const dialog = Dialog::find(handle);
    Kind* const item = dialog != nullptr ? dynamic_cast<Kind*>(dialog->findItem(id)) : nullptr;
    if constexpr (std::is_void_v<Result>) {
        if (item != nullptr) {
            operation(*item);
        }
    } else {
        return item != nullptr ? operation(*item) : Result{};
    }
}

/// The widget of a handle, which may be the application's; null if there is none.
QWidget* findWidget(WindowHandle handle) {
    const QWidgetList widgets = QApplication::allWidgets();
    const auto found = std::find(widgets.begin(), widgets.end(), handle);
    return found == widgets.end() ? nullptr : (*found)->window();
}

Rectangle fromQt(const QRect& place) {
    return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

QRect toQt(const Rectangle& place) {
    return {place.left, place.top, place.width(), place.height()};
}

} // namespace

// ---- Dialogs -----------------------------------------------------------------------------------

std::intptr_t QtWindowSystem::runModal(std::span<const std::byte> dialogTemplate,
                                       const ResourceModule& resources, WindowHandle owner,
                                       DialogProcedure& procedure) {
    constexpr std::intptr_t notMade = -1;
    Dialog* const dialog = Dialog::create(dialogTemplate, resources, findWidget(owner), procedure);
    return dialog != nullptr ? dialog->runModal() : notMade;
}

WindowHandle QtWindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                            const ResourceModule& resources, WindowHandle owner,
                                            DialogProcedure& procedure) {
    Dialog* const dialog = Dialog::create(dialogTemplate, resources, findWidget(owner), procedure);
    if (dialog == nullptr) {
        return nullptr;
    }
    const WindowHandle handle = dialog->handle();
    dialog->startModeless();
    return Dialog::find(handle) != nullptr ? handle : nullptr;
}

void QtWindowSystem::endDialog(WindowHandle dialog, std::intptr_t value) {
    onDialog(dialog, [&](Dialog& found) { found.end(value); });
}

void QtWindowSystem::destroyDialog(WindowHandle dialog) {
    onDialog(dialog, [](Dialog& found) { found.destroy(); });
}

std::intptr_t QtWindowSystem::send(WindowHandle dialog, std::uint32_t message,
                                   std::uintptr_t wParam, std::intptr_t lParam) {
    return onDialog(dialog, [&](Dialog& found) { return found.send(message, wParam, lParam); });
}

/// There are no sheets of pages here.
void QtWindowSystem::reportChanged(WindowHandle /*dialog*/) {}

void QtWindowSystem::setCaption(WindowHandle dialog, std::u16string_view text) {
    onDialog(dialog, [&](Dialog& found) { found.setWindowTitle(toTitle(qt::toQt(text))); });
}

std::u16string QtWindowSystem::getCaption(WindowHandle window) {
    const QWidget* const widget = findWidget(window);
    return widget != nullptr ? qt::fromQt(captionOf(*widget)) : std::u16string();
}

bool QtWindowSystem::isVisible(WindowHandle dialog) {
    return onDialog(dialog, [](const Dialog& found) { return found.isVisible(); });
}

Rectangle QtWindowSystem::getWindowRectangle(WindowHandle dialog) {
    return onDialog(dialog, [](const Dialog& found) { return fromQt(found.frameGeometry()); });
}

Rectangle QtWindowSystem::getClientRectangle(WindowHandle dialog) {
    return onDialog(dialog, [](const Dialog& found) { return fromQt(found.rect()); });
}

void QtWindowSystem::moveWindow(WindowHandle dialog, const Rectangle& place) {
    onDialog(dialog, [&](Dialog& found) { found.moveTo(toQt(place)); });
}

Rectangle QtWindowSystem::getWorkArea(WindowHandle dialog) {
    return onDialog(
        dialog, [](const Dialog& found) { return fromQt(found.screen()->availableGeometry()); });
}

Rectangle QtWindowSystem::mapDialogUnits(WindowHandle dialog, const Rectangle& units) {
    return onDialog(dialog, [&](const Dialog& found) { return found.units().toPixels(units); });
}

// ---- Any item ----------------------------------------------------------------------------------

std::vector<WindowSystem::Item> QtWindowSystem::getItems(WindowHandle dialog) {
    return onDialog(dialog, [](const Dialog& found) {
        std::vector<Item> items;
        for (const auto& item : found.items()) {
            items.push_back({.id = item->id(),
                             .place = fromQt(item->widget().geometry()),
                             .isMarkedButton = item->isMarkedButton()});
        }
        return items;
    });
}

bool QtWindowSystem::hasItem(WindowHandle dialog, std::uint16_t item) {
    return onItem<AnyItem>(dialog, item, [](const AnyItem& /*found*/) { return true; });
}

void QtWindowSystem::moveItem(WindowHandle dialog, std::size_t index, const Rectangle& place) {
    onDialog(dialog, [&](const Dialog& found) {
        if (index < found.items().size()) {
            found.items()[index]->widget().setGeometry(toQt(place));
        }
    });
}

void QtWindowSystem::showItem(WindowHandle dialog, std::uint16_t item, bool isShown) {
    onItem<AnyItem>(dialog, item,
                    [&](const AnyItem& found) { found.widget().setVisible(isShown); });
}

bool QtWindowSystem::isItemShown(WindowHandle dialog, std::uint16_t item) {
    return onItem<AnyItem>(dialog, item,
                           [](const AnyItem& found) { return !found.widget().isHidden(); });
}

void QtWindowSystem::enableItem(WindowHandle dialog, std::uint16_t item, bool isEnabled) {
    onItem<AnyItem>(dialog, item,
                    [&](const AnyItem& found) { found.widget().setEnabled(isEnabled); });
}

bool QtWindowSystem::isItemEnabled(WindowHandle dialog, std::uint16_t item) {
    return onItem<AnyItem>(dialog, item, [](const AnyItem& found) {
        return found.widget().isEnabledTo(found.widget().window());
    });
}

void QtWindowSystem::focusItem(WindowHandle dialog, std::uint16_t item) {
    onItem<AnyItem>(dialog, item,
                    [](const AnyItem& found) { found.widget().setFocus(Qt::OtherFocusReason); });
}

void QtWindowSystem::removeItem(WindowHandle dialog, std::uint16_t item) {
    onDialog(dialog, [&](Dialog& found) { found.removeItem(item); });
}

void QtWindowSystem::setText(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    onItem<AnyItem>(dialog, item, [&](AnyItem& found) { found.setContents(text); });
}

std::u16string QtWindowSystem::getText(WindowHandle dialog, std::uint16_t item) {
    return onItem<AnyItem>(dialog, item, [](const AnyItem& found) { return found.contents(); });
}

void QtWindowSystem::setToolTip(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    // A tool tip that looks like markup would be shown as that.
    const auto plain = [&] {
        const QString shown = qt::toQt(text);
        return Qt::mightBeRichText(shown) ? shown.toHtmlEscaped() : shown;
    };
    onItem<AnyItem>(dialog, item,
                    [&](const AnyItem& found) { found.widget().setToolTip(plain()); });
}

// ---- Edit items --------------------------------------------------------------------------------

void QtWindowSystem::setTextLimit(WindowHandle dialog, std::uint16_t item, std::uint32_t units) {
    onItem<EditItem>(dialog, item, [&](EditItem& found) { found.setLimit(units); });
}

bool QtWindowSystem::setCharacterFilter(WindowHandle dialog, std::uint16_t item,
                                        CharacterFilter filter) {
    onItem<EditItem>(dialog, item, [&](EditItem& found) { found.setFilter(std::move(filter)); });
    return true;
}

void QtWindowSystem::selectText(WindowHandle dialog, std::uint16_t item, std::int32_t start,
                                std::int32_t end) {
    onItem<EditItem>(dialog, item, [&](EditItem& found) { found.select(start, end); });
}

void QtWindowSystem::setTransparent(WindowHandle dialog, std::uint16_t item) {
    onItem<EditItem>(dialog, item, [](EditItem& found) { found.setTransparent(); });
}

// ---- Buttons, check boxes and radio buttons ----------------------------------------------------

void QtWindowSystem::setDefaultButton(WindowHandle dialog, std::uint16_t item) {
    onItem<ButtonItem>(dialog, item, [](ButtonItem& found) { found.makeDefault(); });
}

void QtWindowSystem::setChecked(WindowHandle dialog, std::uint16_t item, bool isChecked) {
    onItem<ButtonItem>(dialog, item, [&](ButtonItem& found) { found.setChecked(isChecked); });
}

bool QtWindowSystem::isChecked(WindowHandle dialog, std::uint16_t item) {
    return onItem<ButtonItem>(dialog, item,
                              [](const ButtonItem& found) { return found.isChecked(); });
}

// ---- Combo boxes and list boxes ----------------------------------------------------------------

void QtWindowSystem::clearList(WindowHandle dialog, std::uint16_t item) {
    onItem<ListItem>(dialog, item, [](ListItem& found) { found.clear(); });
}

std::int32_t QtWindowSystem::addToList(WindowHandle dialog, std::uint16_t item,
                                       std::u16string_view text, std::uintptr_t value,
                                       std::int32_t position) {
    return onItem<ListItem>(
        dialog, item, [&](ListItem& found) { return found.add(qt::toQt(text), value, position); });
}

void QtWindowSystem::removeFromList(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
    onItem<ListItem>(dialog, item, [&](ListItem& found) { found.remove(index); });
}

std::int32_t QtWindowSystem::getListCount(WindowHandle dialog, std::uint16_t item) {
    return onItem<ListItem>(dialog, item, [](const ListItem& found) { return found.count(); });
}

std::int32_t QtWindowSystem::getSelected(WindowHandle dialog, std::uint16_t item) {
    constexpr std::int32_t none = -1;
    return onItem<ListItem>(dialog, item,
                            [](const ListItem& found) { return found.selected() - none; }) +
           none;
}

void QtWindowSystem::select(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
    onItem<ListItem>(dialog, item, [&](ListItem& found) { found.select(index); });
}

std::u16string QtWindowSystem::getListText(WindowHandle dialog, std::uint16_t item,
                                           std::int32_t index) {
    return onItem<ListItem>(
        dialog, item, [&](const ListItem& found) { return qt::fromQt(found.entryText(index)); });
}

void QtWindowSystem::setListText(WindowHandle dialog, std::uint16_t item, std::int32_t index,
                                 std::u16string_view text) {
    onItem<ListItem>(dialog, item,
                     [&](ListItem& found) { found.setEntryText(index, qt::toQt(text)); });
}

std::uintptr_t QtWindowSystem::getListValue(WindowHandle dialog, std::uint16_t item,
                                            std::int32_t index) {
    return onItem<ListItem>(dialog, item,
                            [&](const ListItem& found) { return found.entryValue(index); });
}

// ---- List views --------------------------------------------------------------------------------

void QtWindowSystem::setListViewStyle(WindowHandle dialog, std::uint16_t item,
                                      ListViewStyle style) {
    onItem<ListViewItem>(dialog, item, [&](ListViewItem& found) { found.setListViewStyle(style); });
}

void QtWindowSystem::addColumn(WindowHandle dialog, std::uint16_t item, std::u16string_view title,
                               std::int32_t width) {
    onItem<ListViewItem>(dialog, item,
                         [&](ListViewItem& found) { found.addColumn(qt::toQt(title), width); });
}

std::int32_t QtWindowSystem::addRow(WindowHandle dialog, std::uint16_t item,
                                    std::u16string_view text, std::uint32_t icon,
                                    std::uintptr_t value) {
    return onItem<ListViewItem>(dialog, item, [&](ListViewItem& found) {
        return found.addRow(qt::toQt(text), icon, value);
    });
}

void QtWindowSystem::setCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                             std::int32_t column, std::u16string_view text) {
    onItem<ListViewItem>(dialog, item,
                         [&](ListViewItem& found) { found.setCell(row, column, qt::toQt(text)); });
}

std::u16string QtWindowSystem::getCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                       std::int32_t column) {
    return onItem<ListViewItem>(dialog, item, [&](const ListViewItem& found) {
        return qt::fromQt(found.cell(row, column));
    });
}

void QtWindowSystem::removeRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    onItem<ListViewItem>(dialog, item, [&](ListViewItem& found) { found.removeRow(row); });
}

void QtWindowSystem::clearRows(WindowHandle dialog, std::uint16_t item) {
    onItem<ListViewItem>(dialog, item, [](ListViewItem& found) { found.clearRows(); });
}

std::int32_t QtWindowSystem::getRowCount(WindowHandle dialog, std::uint16_t item) {
    return onItem<ListViewItem>(dialog, item,
                                [](const ListViewItem& found) { return found.rowCount(); });
}

std::uintptr_t QtWindowSystem::getRowValue(WindowHandle dialog, std::uint16_t item,
                                           std::int32_t row) {
    return onItem<ListViewItem>(dialog, item,
                                [&](const ListViewItem& found) { return found.rowValue(row); });
}

std::vector<std::int32_t> QtWindowSystem::getSelectedRows(WindowHandle dialog, std::uint16_t item) {
    return onItem<ListViewItem>(dialog, item,
                                [](const ListViewItem& found) { return found.selectedRows(); });
}

void QtWindowSystem::selectRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    onItem<ListViewItem>(dialog, item, [&](ListViewItem& found) { found.selectRow(row); });
}

void QtWindowSystem::setRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                   bool isChecked) {
    onItem<ListViewItem>(dialog, item,
                         [&](ListViewItem& found) { found.setRowChecked(row, isChecked); });
}

bool QtWindowSystem::isRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    return onItem<ListViewItem>(dialog, item,
                                [&](const ListViewItem& found) { return found.isRowChecked(row); });
}

// ---- Sliders, scroll bars and spins ------------------------------------------------------------

void QtWindowSystem::setRange(WindowHandle dialog, std::uint16_t item, std::int32_t lower,
                              std::int32_t upper) {
    onItem<RangeItem>(dialog, item, [&](RangeItem& found) { found.setRange(lower, upper); });
}

void QtWindowSystem::setPosition(WindowHandle dialog, std::uint16_t item, std::int32_t position) {
    onItem<RangeItem>(dialog, item, [&](RangeItem& found) { found.setPosition(position); });
}

std::int32_t QtWindowSystem::getPosition(WindowHandle dialog, std::uint16_t item) {
    return onItem<RangeItem>(dialog, item, [](const RangeItem& found) { return found.position(); });
}

// ---- Pictures ----------------------------------------------------------------------------------

void QtWindowSystem::setBitmap(WindowHandle dialog, std::uint16_t item, std::uint32_t bitmap,
                               bool /*clearsGround*/) {
    onItem<StaticItem>(dialog, item, [&](StaticItem& found) { found.setBitmap(bitmap); });
}

void QtWindowSystem::drawBitmap(WindowHandle dialog, const DrawRequest& request,
                                std::uint32_t bitmap) {
    onDialog(dialog, [&](Dialog& found) {
        static_cast<QPainter*>(request.canvas)->drawPixmap(0, 0, found.pictures().bitmap(bitmap));
    });
}

// ---- Beside dialogs ----------------------------------------------------------------------------

std::int32_t QtWindowSystem::showMessageBox(WindowHandle owner, std::u16string_view body,
                                            std::u16string_view title, std::uint32_t flags) {
    return qt::showMessageBox(findWidget(owner), qt::toQt(body), qt::toQt(title), flags);
}

std::optional<std::u16string> QtWindowSystem::askForOpenFile(WindowHandle owner,
                                                             const FileQuestion& question) {
    return askForFile(findWidget(owner), question, QFileDialog::AcceptOpen);
}

std::optional<std::u16string> QtWindowSystem::askForSaveFile(WindowHandle owner,
                                                             const FileQuestion& question) {
    return askForFile(findWidget(owner), question, QFileDialog::AcceptSave);
}

/// The help file is of a form that nothing here reads.
bool QtWindowSystem::showHelp(WindowHandle /*owner*/, std::u16string_view /*helpFile*/,
                              std::uint32_t /*context*/) {
    return false;
}

bool QtWindowSystem::saveScreenshot(WindowHandle dialog, std::u16string_view fileName) {
    const QString path = qt::toQt(fileName);
    const bool isBitmap = path.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive);
    return onDialog(
        dialog, [&](Dialog& found) { return found.grab().save(path, isBitmap ? "BMP" : "PNG"); });
}

} // namespace zent::platform::qt
