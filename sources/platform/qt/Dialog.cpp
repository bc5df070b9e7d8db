#include "platform/qt/Dialog.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "platform/KeepForever.h"
#include "platform/qt/ButtonItem.h"
#include "platform/qt/Caption.h"
#include "platform/qt/Place.h"
#include "platform/qt/SpinItem.h"
#include "platform/qt/StaticItem.h"
#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint16_t okItem = 1;
constexpr std::uint16_t cancelItem = 2;

constexpr QSize largestWindow(8191, 8191); // beyond any screen

std::vector<Dialog*>& liveDialogs() {
    static auto& dialogs = keepForever<std::vector<Dialog*>>();
    return dialogs;
}

/// Whether the keyboard can reach an item.
bool isTabStop(const std::unique_ptr<Item>& item) {
    return item->hasStyle(itemStyle::tabStop) && !item->widget().isHidden() &&
           item->widget().isEnabled();
}

} // namespace

Dialog* Dialog::create(std::span<const std::byte> bytes, const ResourceModule& resources,
                       QWidget* owner, DialogProcedure& procedure) {
    const auto source = DialogTemplate::read(bytes);
    if (!source) {
        return nullptr;
    }
    std::unique_ptr<Dialog> dialog(new Dialog(*source, resources, owner, procedure));
    return dialog->addItems(*source) ? dialog.release() : nullptr;
}

Dialog* Dialog::find(WindowHandle handle) {
    const auto& dialogs = liveDialogs();
    const auto found = std::find_if(dialogs.begin(), dialogs.end(),
                                    [&](Dialog* dialog) { return dialog->getHandle() == handle; });
    return found == dialogs.end() ? nullptr : *found;
}

Dialog::Dialog(const DialogTemplate& source, const ResourceModule& resources, QWidget* owner,
               DialogProcedure& procedure)
    : QDialog(owner), m_procedure(procedure), m_pictures(resources), m_units(font()),
      m_area(*new QScrollArea(this)), m_surface(*new QWidget) {
    liveDialogs().push_back(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(toTitle(toQt(source.title)));
    m_area.setFrameShape(QFrame::NoFrame);
    m_area.setFocusPolicy(Qt::NoFocus);
    m_area.setWidget(&m_surface);
    m_surface.setAutoFillBackground(false); // the items are drawn on the dialog's own ground
    setInnerSize(m_units.toPixels(source.place).size());
    placeInTheMiddle();
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* left, QWidget* now) { noticeFocus(left, now); });
}

Dialog::~Dialog() {
    try {
        sendDestroy();
    } catch (...) {
        // The dialog has ended, so that nobody hears of it any more.
    }
    std::erase(liveDialogs(), this);
    if (m_run != nullptr) {
        m_run->end();
    }
    // The widgets go first, since they report to the items.
    qApp->disconnect(this);
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

// ---- Creation ----------------------------------------------------------------------------------

bool Dialog::addItems(const DialogTemplate& source) {
    for (const DialogTemplate::Item& item : source.items) {
        m_items.push_back(Item::make(*this, item, m_pictures));
        if (m_items.back() == nullptr) {
            return false;
        }
    }
    groupRadioButtons();
    connectNeighbours();
    chooseDefault();
    return true;
}

/// Makes the groups of radio buttons. A group goes from an item with the group style to the next
/// one.
void Dialog::groupRadioButtons() {
    for (const auto& item : m_items) {
        if (m_radioGroups.empty() || item->hasStyle(itemStyle::group)) {
            m_radioGroups.push_back(std::make_unique<QButtonGroup>());
        }
        if (auto* const button = dynamic_cast<ButtonItem*>(item.get())) {
            button->joinGroup(*m_radioGroups.back());
        }
    }
}

/// Connects items: a label names the next one, and a spin belongs to the one before.
void Dialog::connectNeighbours() {
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        Item* const item = m_items[i].get();
        Item* const next = i + 1 < m_items.size() ? m_items[i + 1].get() : nullptr;
        if (auto* const label = dynamic_cast<StaticItem*>(item);
            label != nullptr && next != nullptr) {
            label->setBuddy(next->widget());
        }
        auto* const spin = dynamic_cast<SpinItem*>(item);
        if (spin != nullptr && spin->wantsBuddy() && i > 0) {
            spin->setBuddy(*m_items[i - 1]);
        }
    }
}

/// Without a default button in the template, Enter presses OK.
void Dialog::chooseDefault() {
    if (m_defaultButton == nullptr) {
        item<platform::ButtonItem>(okItem).makeDefault();
    }
}

// ---- From start to end -------------------------------------------------------------------------

void Dialog::start() {
    m_state = State::running;
    send(event::initDialog, 0, 0);
    if (m_state == State::running) {
        focusFirst();
        fitScreen();
        show();
    }
}

std::intptr_t Dialog::runModal() {
    setWindowModality(parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    const QPointer<Dialog> self(this);
    ModalRun run;
    m_run = &run;
    const auto close = [&] {
        if (self != nullptr) {
            m_run = nullptr;
            hide();
            delete this;
        }
    };
    try {
        start();
        run.stay();
        if (self != nullptr) {
            sendDestroy();
        }
    } catch (...) {
        close();
        throw;
    }
    close();
    return run.value();
}

void Dialog::startModeless() {
    const QPointer<Dialog> self(this);
    try {
        start();
    } catch (...) {
        delete self.data();
        throw;
    }
}

void Dialog::end(std::intptr_t value) {
    if (m_run != nullptr) {
        m_run->end(value);
        m_state = State::ended;
    }
}

void Dialog::destroy() {
    if (m_run != nullptr) {
        end(0);
        return;
    }
    const std::vector<Dialog*> dialogs = liveDialogs();
    for (Dialog* const dialog : dialogs) {
        if (dialog->parentWidget() == this) {
            dialog->destroy();
        }
    }
    sendDestroy();
    std::erase(liveDialogs(), this);
    hide();
    deleteLater();
}

void Dialog::sendDestroy() {
    if (m_state == State::running || m_state == State::ended) {
        m_state = State::gone;
        send(event::destroy, 0, 0);
    }
}

void Dialog::focusFirst() {
    const auto first = std::find_if(m_items.begin(), m_items.end(), isTabStop);
    if (focusWidget() == nullptr && first != m_items.end()) {
        (*first)->widget().setFocus(Qt::TabFocusReason);
    }
}

bool Dialog::focusBehind(const QWidget& widget) {
    const auto own = std::find_if(m_items.begin(), m_items.end(),
                                  [&](const auto& item) { return &item->widget() == &widget; });
    const auto next = std::find_if(own, m_items.end(), isTabStop);
    if (next != m_items.end()) {
        (*next)->widget().setFocus(Qt::ShortcutFocusReason);
    }
    return true;
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool hasDefault = m_defaultButton != nullptr && m_defaultButton->isThere();
    if (isEnter && !hasDefault) {
        tellCommand(okItem, notification::clicked);
    } else {
        QDialog::keyPressEvent(event);
    }
}

/// The user closes the dialog, or presses Escape.
void Dialog::reject() {
    const Item* const cancel = findItem(cancelItem);
    if (cancel != nullptr && !cancel->widget().isEnabledTo(this)) {
        return;
    }
    const QPointer<Dialog> self(this);
    tellCommand(cancelItem, notification::clicked);
    if (self == nullptr || m_state != State::running) {
        return;
    }
    if (m_run != nullptr) {
        end(0);
    } else {
        destroy();
    }
}

// ---- What the user does ------------------------------------------------------------------------

std::intptr_t Dialog::send(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
    std::intptr_t result = 0;
    m_procedure.processEvent(*this, message, wParam, lParam, result);
    return result;
}

/// Qt calls this, so that no exception may leave it.
std::intptr_t Dialog::deliver(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
    if (m_state != State::running) {
        return 0;
    }
    try {
        return send(message, wParam, lParam);
    } catch (...) {
        if (!ModalRun::isAny()) {
            throw; // the loop is the application's
        }
        ModalRun::fail();
        return 0;
    }
}

void Dialog::tellCommand(std::uint16_t item, std::uint32_t code) {
    deliver(event::command, item | std::uintptr_t{code} << 16, 0);
}

std::intptr_t Dialog::tellNotification(const Notification& notification) {
    return deliver(event::notify, notification.item,
                   reinterpret_cast<std::intptr_t>(&notification));
}

void Dialog::tellScroll(std::uint16_t item, int position) {
    deliver(event::horizontalScroll, std::uintptr_t{static_cast<std::uint16_t>(position)} << 16,
            item);
}

void Dialog::tellDraw(const DrawRequest& request) {
    deliver(event::drawItem, request.item, reinterpret_cast<std::intptr_t>(&request));
}

void Dialog::tellMouse(std::uint32_t message, std::uint16_t item, const QPoint& place) {
    const auto word = [](int number) { return std::intptr_t{static_cast<std::uint16_t>(number)}; };
    deliver(message, item, word(place.x()) | word(place.y()) << 16);
}

void Dialog::noticeFocus(const QWidget* left, QWidget* now) {
    if (now != nullptr && m_surface.isAncestorOf(now)) {
        m_area.ensureWidgetVisible(now, 0, 0);
    }
    Item* const item = m_state == State::running ? findItemOf(left) : nullptr;
    if (item != nullptr) {
        item->leaveFocus();
    }
}

/// The item to which a widget belongs; null if it belongs to none.
Item* Dialog::findItemOf(const QWidget* widget) const {
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) {
        return &item->widget() == widget || item->widget().isAncestorOf(widget);
    });
    return widget != nullptr && found != m_items.end() ? found->get() : nullptr;
}

// ---- Items and places --------------------------------------------------------------------------

Item* Dialog::findItem(std::uint16_t id) const {
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) {
        return item->isThere() && item->getId() == id;
    });
    return found == m_items.end() ? nullptr : found->get();
}

std::uint16_t Dialog::getFocusedItem() const {
    const Item* const item = findItemOf(focusWidget());
    return item != nullptr ? item->getId() : std::uint16_t{0};
}

std::vector<DialogItem*> Dialog::getItems() const {
    std::vector<DialogItem*> items;
    for (const auto& item : m_items) {
        if (item->isThere()) {
            items.push_back(item.get());
        }
    }
    return items;
}

/// Puts the window where it will stand unless the procedure moves it: in the middle of its owner,
/// or of the screen.
void Dialog::placeInTheMiddle() {
    const QRect area = parentWidget() != nullptr ? parentWidget()->window()->frameGeometry()
                                                 : screen()->availableGeometry();
    move(area.center() - rect().center());
    setAttribute(Qt::WA_Moved, false);
}

void Dialog::moveTo(const Rectangle& place) {
    const QRect wanted = toQt(place);
    setInnerSize(wanted.size() - (frameGeometry().size() - size()));
    if (wanted.topLeft() != frameGeometry().topLeft()) {
        move(wanted.topLeft());
    }
}

void Dialog::setInnerSize(const QSize& size) {
    m_surface.resize(size.expandedTo(QSize(0, 0)).boundedTo(largestWindow));
    setFixedSize(m_surface.size());
    if (isVisible()) {
        fitScreen();
    }
}

/// A dialog that is larger than its screen shows a part of its surface, and bars to scroll it.
void Dialog::fitScreen() {
    // The size of the frame is known only once the window is there.
    const int edge = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame =
        isVisible() ? frameGeometry().size() - size()
                    : QSize(2 * edge, edge + style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize room = screen()->availableGeometry().size() - frame;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize wanted = m_surface.size();
    if (wanted.width() <= room.width() && wanted.height() <= room.height()) {
        return;
    }
    wanted += QSize(m_surface.height() > room.height() ? bar : 0,
                    m_surface.width() > room.width() ? bar : 0);
    setFixedSize(wanted.boundedTo(room));
}

void Dialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    m_area.setGeometry(rect());
}

void Dialog::setCaption(std::u16string_view text) { setWindowTitle(toTitle(toQt(text))); }

Rectangle Dialog::getWindowRectangle() const { return fromQt(frameGeometry()); }

Rectangle Dialog::getClientRectangle() const { return fromQt(rect()); }

Rectangle Dialog::getWorkArea() const { return fromQt(screen()->availableGeometry()); }

Rectangle Dialog::mapDialogUnits(const Rectangle& units) const { return m_units.toPixels(units); }

} // namespace zent::platform::qt
