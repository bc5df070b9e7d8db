#include "platform/qt/SimpleComboItem.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

/// The text of the box. It passes the keys for up and down to the list.
class SimpleComboItem::Entry final : public QLineEdit {
public:
    Entry(QWidget& box, QListWidget& list) : QLineEdit(&box), m_list(list) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(&m_list, event);
            break;
        default:
            QLineEdit::keyPressEvent(event);
        }
    }

private:
    QListWidget& m_list;
};

SimpleComboItem::SimpleComboItem(Dialog& dialog, const DialogTemplate::Item& source)
    : SimpleComboItem(dialog, source, *new QWidget(&dialog.surface())) {}

SimpleComboItem::SimpleComboItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& box)
    : OpenListItem(dialog, source, box, *new QListWidget(&box),
                   (source.style & comboStyle::sorted) != 0),
      m_edit(*new Entry(box, list())) {
    auto* const layout = new QVBoxLayout(&box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&m_edit);
    layout->addWidget(&list());
    box.setFocusProxy(&m_edit);
    m_edit.setFocusPolicy(hasStyle(itemStyle::tabStop) ? Qt::StrongFocus : Qt::ClickFocus);
    list().setFocusPolicy(Qt::ClickFocus);
    list().setFocusProxy(&m_edit);
    QObject::connect(&list(), &QListWidget::itemSelectionChanged, &box, [this] {
        m_edit.setText(entryText(getSelected()));
        this->dialog().tellCommand(getId(), notification::comboSelected);
    });
    QObject::connect(&m_edit, &QLineEdit::textEdited, &box, [this] {
        OpenListItem::select(-1);
        this->dialog().tellCommand(getId(), notification::comboEdited);
    });
}

void SimpleComboItem::select(int index) {
    OpenListItem::select(index);
    m_edit.setText(entryText(index));
}

void SimpleComboItem::clear() {
    OpenListItem::clear();
    m_edit.clear();
}

} // namespace zent::platform::qt
