#include "platform/qt/GroupBoxItem.h"

#include <QEvent>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

/// A frame whose mnemonic leads to the first item behind it that can have the focus.
class GroupBoxItem::Box final : public QGroupBox {
public:
    explicit Box(Dialog& dialog) : QGroupBox(&dialog), m_dialog(dialog) {}

protected:
    bool event(QEvent* event) override {
        return event->type() == QEvent::Shortcut ? m_dialog.focusBehind(*this)
                                                 : QGroupBox::event(event);
    }

private:
    Dialog& m_dialog;
};

GroupBoxItem::GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source)
    : GroupBoxItem(dialog, source, *new Box(dialog)) {}

GroupBoxItem::GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QGroupBox& box)
    : Item(dialog, source, box), m_box(box) {
    box.setTitle(textOf(source.title));
    // What it surrounds lies above it, and isn't in it.
    box.setAttribute(Qt::WA_TransparentForMouseEvents);
    box.lower();
}

} // namespace zent::platform::qt
