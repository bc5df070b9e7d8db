#include "platform/qt/SpinItem.h"

#include <algorithm>
#include <vector>

#include <QKeyEvent>
#include <QStyle>
#include <QToolButton>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint32_t setsBuddysText = 2;
constexpr std::uint32_t standsRight = 4;
constexpr std::uint32_t standsLeft = 8;
constexpr std::uint32_t takesBuddy = 0x10;
constexpr std::uint32_t takesArrowKeys = 0x20;

} // namespace

/// Two buttons, one above the other. They take the arrow keys of the widgets that they watch.
class SpinItem::Arrows final : public QWidget {
public:
    explicit Arrows(Dialog& dialog) : QWidget(&dialog.surface()) {}
    void setItem(SpinItem& item) {
        add(Qt::UpArrow, item, 1);
        add(Qt::DownArrow, item, -1);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && isEnabled()) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down) {
                m_buttons[key == Qt::Key_Up ? 0 : 1]->click();
                return true;
            }
        }
        return QWidget::eventFilter(watched, event);
    }

protected:
    void resizeEvent(QResizeEvent* /*event*/) override {
        const int half = height() / 2;
        m_buttons[0]->setGeometry(0, 0, width(), half);
        m_buttons[1]->setGeometry(0, half, width(), height() - half);
    }

private:
    void add(Qt::ArrowType arrow, SpinItem& item, int steps) {
        auto* const button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [&item, steps] { item.step(steps); });
        m_buttons.push_back(button);
    }

    std::vector<QToolButton*> m_buttons;
};

SpinItem::SpinItem(Dialog& dialog, const DialogTemplate::Item& source)
    : SpinItem(dialog, source, *new Arrows(dialog)) {}

SpinItem::SpinItem(Dialog& dialog, const DialogTemplate::Item& source, Arrows& arrows)
    : Item(dialog, source, arrows) {
    arrows.setItem(*this);
}

void SpinItem::setRange(int lower, int upper) {
    m_lower = std::min(lower, upper);
    m_upper = std::max(lower, upper);
    m_position = std::clamp(m_position, m_lower, m_upper);
}

void SpinItem::setPosition(int position) {
    m_position = std::clamp(position, m_lower, m_upper);
    if (m_buddy != nullptr && hasStyle(setsBuddysText)) {
        m_buddy->showText(QString::number(m_position));
    }
}

bool SpinItem::wantsBuddy() const { return hasStyle(takesBuddy); }

void SpinItem::setBuddy(Item& buddy) {
    m_buddy = &buddy;
    if (hasStyle(takesArrowKeys)) {
        buddy.widget().installEventFilter(&widget());
    }
    const QRect room = buddy.widget().geometry();
    const int width = widget().style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget());
    if (hasStyle(standsRight)) {
        buddy.widget().setGeometry(room.adjusted(0, 0, -width, 0));
        widget().setGeometry(room.right() + 1 - width, room.top(), width, room.height());
    } else if (hasStyle(standsLeft)) {
        buddy.widget().setGeometry(room.adjusted(width, 0, 0, 0));
        widget().setGeometry(room.left(), room.top(), width, room.height());
    }
}

/// `steps` are positive upwards.
void SpinItem::step(int steps) {
    Notification notification;
    notification.item = getId();
    notification.code = notification::spinStep;
    notification.position = m_position;
    notification.delta = -steps;
    if (dialog().tellNotification(notification) == 0) {
        const std::int64_t position = std::int64_t{m_position} + steps;
        setPosition(static_cast<int>(std::clamp<std::int64_t>(position, m_lower, m_upper)));
    }
}

} // namespace zent::platform::qt
