#include "platform/qt/GroupBoxItem.h"

#include <QEvent>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

/// A frame with its title in the upper line, since templates leave no room for it elsewhere. Its
/// mnemonic leads to the first item after it that can have the focus.
class GroupBoxItem::Box final : public QGroupBox {
public:
    explicit Box(Dialog& dialog) : QGroupBox(&dialog.surface()), m_dialog(dialog) {}

protected:
    bool event(QEvent* event) override {
        return event->type() == QEvent::Shortcut ? m_dialog.focusBehind(*this)
                                                 : QGroupBox::event(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        QStylePainter painter(this);
        const int inset = fontMetrics().averageCharWidth();
        QRect room = fontMetrics().boundingRect(QRect(), Qt::TextShowMnemonic, title());
        room.moveTopLeft(QPoint(inset + inset / 2, 0));
        QStyleOptionFrame frame;
        frame.initFrom(this);
        frame.rect.setTop(room.height() / 2);
        frame.frameShape = QFrame::Box;
        frame.lineWidth = 1;
        frame.state |= QStyle::State_Sunken;
        if (!title().isEmpty()) {
            painter.setClipRegion(
                QRegion(rect()).subtracted(room.adjusted(-inset / 2, 0, inset / 2, 0)));
        }
        painter.drawControl(QStyle::CE_ShapedFrame, frame);
        painter.setClipping(false);
        painter.drawItemText(room, Qt::TextShowMnemonic, palette(), isEnabled(), title(),
                             QPalette::WindowText);
    }

private:
    Dialog& m_dialog;
};

GroupBoxItem::GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source)
    : GroupBoxItem(dialog, source, *new Box(dialog)) {}

GroupBoxItem::GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QGroupBox& box)
    : Item(dialog, source, box), m_box(box) {
    box.setTitle(textOf(source.title));
    // The items that it surrounds lie above it, and aren't its children.
    box.setAttribute(Qt::WA_TransparentForMouseEvents);
    box.lower();
}

} // namespace zent::platform::qt
