#include "support/DialogUser.h"

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTimer>

#include "platform/WindowSystem.h"

namespace zent::test::user {

namespace {

using platform::WindowHandle;

/// The tests' windows stand on no screen, unless the environment names another platform.
[[maybe_unused]] const bool isPlatformChosen = [] {
    const char* const chosen = std::getenv("QT_QPA_PLATFORM");
    return (chosen != nullptr && *chosen != '\0') || setenv("QT_QPA_PLATFORM", "offscreen", 1) == 0;
}();

QWidget* widgetOf(WindowHandle dialog) { return static_cast<QWidget*>(dialog); }

/// An item's widget that the user sees and can act on, of a type; null if there is none.
template <typename Widget = QWidget>
Widget* findUsable(WindowHandle dialog, std::uint16_t item) {
    auto* const outer = widgetOf(dialog)->findChild<QWidget*>(QString::number(item));
    if (outer == nullptr || !outer->isVisible() || !outer->isEnabled()) {
        return nullptr;
    }
    auto* const own = qobject_cast<Widget*>(outer);
    if (own != nullptr) {
        return own;
    }
    for (auto* const inner : outer->findChildren<Widget*>()) {
        if (inner->isVisible()) {
            return inner;
        }
    }
    return nullptr;
}

/// Gives an item the focus, with the cursor at the end unless it has been there, or something is
/// selected.
QWidget* focusForText(WindowHandle dialog, std::uint16_t item) {
    auto* const outer = findUsable(dialog, item);
    if (outer == nullptr) {
        return nullptr;
    }
    if (!outer->hasFocus() && !outer->isAncestorOf(QApplication::focusWidget())) {
        outer->setFocus(Qt::OtherFocusReason);
        auto* const entry = QApplication::focusWidget();
        const bool isSelected =
            !entry->inputMethodQuery(Qt::ImCurrentSelection).toString().isEmpty();
        if (!isSelected) {
            QTest::keyClick(entry, Qt::Key_End, Qt::ControlModifier);
        }
    }
    return QApplication::focusWidget();
}

void clickAt(QAbstractItemView* view, const QPoint& place) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/// The place of a row on the screen, in its view, which is scrolled to it.
QRect placeOfRow(QAbstractItemView* view, std::int32_t row) {
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    return view->visualRect(index);
}

// ---- What is to be done when dialogs open ------------------------------------------------------

using Action = std::function<void(WindowHandle)>;

std::deque<Action>& waitingActions() {
    static std::deque<Action> actions;
    return actions;
}

/// The active window, if nothing has been done to it yet.
QWidget* findNewWindow() {
    static std::vector<QPointer<QWidget>> known;
    auto* const modal = QApplication::activeModalWidget();
    auto* const window = modal != nullptr ? modal : QApplication::activeWindow();
    if (window == nullptr || !window->isActiveWindow() ||
        std::find(known.begin(), known.end(), window) != known.end()) {
        return nullptr;
    }
    known.emplace_back(window);
    return window;
}

void lookForWindow() {
    constexpr int milliseconds = 5;
    auto& actions = waitingActions();
    if (actions.empty()) {
        return;
    }
    auto* const window = findNewWindow();
    Action action;
    if (window != nullptr) {
        action = std::move(actions.front());
        actions.pop_front();
    }
    // Before the action, which may open a dialog itself, and stay until it closes.
    QTimer::singleShot(milliseconds, lookForWindow);
    if (action) {
        action(window);
    }
}

} // namespace

void onceOpen(std::function<void(WindowHandle dialog)> action) {
    platform::WindowSystem::find(); // makes the application object
    waitingActions().push_back(std::move(action));
    QTimer::singleShot(0, lookForWindow);
}

std::uint16_t focused(WindowHandle dialog) {
    std::uint16_t item = 0;
    for (const QWidget* widget = widgetOf(dialog)->focusWidget(); widget != nullptr && item == 0;
         widget = widget->parentWidget()) {
        item = widget->objectName().toUShort();
    }
    return item;
}

void press(WindowHandle dialog, Key key) {
    static const std::pair<Key, Qt::Key> keys[] = {
        {Key::tab, Qt::Key_Tab},       {Key::shiftTab, Qt::Key_Backtab},
        {Key::enter, Qt::Key_Return},  {Key::escape, Qt::Key_Escape},
        {Key::remove, Qt::Key_Delete}, {Key::backspace, Qt::Key_Backspace},
        {Key::up, Qt::Key_Up},         {Key::down, Qt::Key_Down},
        {Key::space, Qt::Key_Space},
    };
    const auto* const found = std::find_if(std::begin(keys), std::end(keys),
                                           [&](const auto& k) { return k.first == key; });
    auto* const focus = widgetOf(dialog)->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : widgetOf(dialog), found->second,
                    key == Key::shiftTab ? Qt::ShiftModifier : Qt::NoModifier);
}

void type(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    auto* const entry = focusForText(dialog, item);
    const QString typed = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    for (const char32_t character : typed.toUcs4()) {
        if (entry != nullptr) {
            QTest::sendKeyEvent(QTest::Click, entry,
                                character == U'\r' ? Qt::Key_Return : Qt::Key_unknown,
                                QString::fromUcs4(&character, 1), Qt::NoModifier);
        }
    }
}

void paste(WindowHandle dialog, std::uint16_t item, std::u16string_view text) {
    if (auto* const entry = focusForText(dialog, item)) {
        QApplication::clipboard()->setText(
            QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
        QTest::keyClick(entry, Qt::Key_V, Qt::ControlModifier);
    }
}

void click(WindowHandle dialog, std::uint16_t item) {
    if (auto* const widget = findUsable(dialog, item)) {
        // Near the left, where a check box or radio button is, however short its text.
        const QPoint place(std::min(8, widget->width() / 2), widget->height() / 2);
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
    }
}

void moveMouse(WindowHandle dialog, std::uint16_t item, int x, int y) {
    if (auto* const widget = findUsable(dialog, item)) {
        QTest::mouseMove(widget, QPoint(x, y));
    }
}

void pressMouse(WindowHandle dialog, std::uint16_t item, int x, int y) {
    if (auto* const widget = findUsable(dialog, item)) {
        QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
    }
}

void choose(WindowHandle dialog, std::uint16_t item, std::int32_t index) {
    if (auto* const combo = findUsable<QComboBox>(dialog, item)) {
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_F4);
        QTest::keyClick(combo->view(), Qt::Key_Home);
        for (std::int32_t i = 0; i < index; ++i) {
            QTest::keyClick(combo->view(), Qt::Key_Down);
        }
        QTest::keyClick(combo->view(), Qt::Key_Return);
    } else if (auto* const list = findUsable<QListWidget>(dialog, item)) {
        clickAt(list, placeOfRow(list, index).center());
    }
}

bool seesRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    auto* const view = findUsable<QAbstractItemView>(dialog, item);
    const QRect place = view != nullptr ? view->visualRect(view->model()->index(row, 0)) : QRect();
    return place.top() >= 0 && place.bottom() < view->viewport()->height() && !place.isEmpty();
}

void clickRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    if (auto* const view = findUsable<QAbstractItemView>(dialog, item)) {
        clickAt(view, placeOfRow(view, row).center());
    }
}

void checkRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    if (auto* const view = findUsable<QAbstractItemView>(dialog, item)) {
        QStyleOptionViewItem option;
        option.initFrom(view);
        option.rect = placeOfRow(view, row);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        clickAt(view, view->style()
                          ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view)
                          .center());
    }
}

void moveSlider(WindowHandle dialog, std::uint16_t item, std::int32_t position) {
    if (auto* const slider = findUsable<QAbstractSlider>(dialog, item)) {
        slider->setFocus();
        while (slider->value() != std::clamp(position, slider->minimum(), slider->maximum())) {
            QTest::keyClick(slider, slider->value() < position ? Qt::Key_Right : Qt::Key_Left);
        }
    }
}

void spin(WindowHandle dialog, std::uint16_t item, bool up) {
    if (auto* const arrows = findUsable(dialog, item)) {
        const QPoint place(arrows->width() / 2, arrows->height() * (up ? 1 : 3) / 4);
        QTest::mouseClick(arrows->childAt(place), Qt::LeftButton);
    }
}

void close(WindowHandle dialog) { widgetOf(dialog)->close(); }

bool saveScreenshot(WindowHandle dialog, const std::filesystem::path& file) {
    return widgetOf(dialog)->grab().save(QString::fromStdU16String(file.u16string()));
}

} // namespace zent::test::user
