#include "platform/qt/SpinItem.h"

#include <algorithm>

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>

#include "platform/WindowSystem.h"
#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint32_t setsBuddysText = 2;
constexpr std::uint32_t standsRight = 4;
constexpr std::uint32_t standsLeft = 8;
constexpr std::uint32_t takesBuddy = 0x10;
constexpr std::uint32_t takesArrowKeys = 0x20;

} // namespace

/// A spin box that has nothing but its arrows. It takes the arrow keys of the widgets that it
/// watches.
class SpinItem::Arrows final : public QAbstractSpinBox {
public:
    explicit Arrows(QWidget* parent) : QAbstractSpinBox(parent) {
        setFocusPolicy(Qt::NoFocus);
        lineEdit()->hide();
    }
    void setItem(SpinItem& item) { m_item = &item; }
    void stepBy(int steps) override { m_item->step(steps); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && isEnabled()) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down) {
                stepBy(key == Qt::Key_Up ? 1 : -1);
                return true;
            }
        }
        return QAbstractSpinBox::eventFilter(watched, event);
    }

protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

private:
    SpinItem* m_item = nullptr;
};

SpinItem::SpinItem(Dialog& dialog, const DialogTemplate::Item& source)
    : SpinItem(dialog, source, *new Arrows(&dialog)) {}

SpinItem::SpinItem(Dialog& dialog, const DialogTemplate::Item& source, Arrows& arrows)
    : RangeItem(dialog, source, arrows) {
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
        m_buddy->setText(QString::number(m_position));
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
    notification.item = id();
    notification.code = notification::spinStep;
    notification.position = m_position;
    notification.delta = -steps;
    if (dialog().tellNotification(notification) == 0) {
        const std::int64_t position = std::int64_t{m_position} + steps;
        setPosition(static_cast<int>(std::clamp<std::int64_t>(position, m_lower, m_upper)));
    }
}

} // namespace zent::platform::qt
