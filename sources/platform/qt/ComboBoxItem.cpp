#include "platform/qt/ComboBoxItem.h"

#include <QLineEdit>

#include "platform/qt/ComboStyle.h"
#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

ComboBoxItem::ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source)
    : ComboBoxItem(dialog, source, *new QComboBox(&dialog.surface())) {}

ComboBoxItem::ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QComboBox& combo)
    : ChoiceItem(dialog, source, combo, (source.style & comboStyle::sorted) != 0), m_combo(combo) {
    // The height in the template is that of the list when it is open.
    constexpr DialogTemplate::Place closed{0, 0, 0, 13};
    combo.resize(combo.width(), dialog.units().toPixels(closed).height());
    if (comboStyle::kindOf(source.style) == comboStyle::dropDown) {
        letEdit();
    }
    QObject::connect(&combo, &QComboBox::activated, &combo,
                     [this] { this->dialog().tellCommand(getId(), notification::comboSelected); });
}

void ComboBoxItem::letEdit() {
    m_combo.setEditable(true);
    m_combo.setInsertPolicy(QComboBox::NoInsert);
    m_combo.setCompleter(nullptr);
    QLineEdit* const edit = m_combo.lineEdit();
    // Otherwise a text that differs from one of the list only in case would become that one when
    // the user leaves.
    QObject::disconnect(edit, &QLineEdit::editingFinished, &m_combo, nullptr);
    QObject::connect(edit, &QLineEdit::textEdited, &m_combo,
                     [this] { dialog().tellCommand(getId(), notification::comboEdited); });
}

void ComboBoxItem::showText(const QString& text) {
    if (m_combo.isEditable()) {
        m_combo.setEditText(text);
    }
}

/// Once the text is edited, no text of the list is selected.
int ComboBoxItem::getSelected() const {
    const int index = m_combo.currentIndex();
    return m_combo.currentText() == m_combo.itemText(index) ? index : -1;
}

void ComboBoxItem::select(int index) { m_combo.setCurrentIndex(isIndex(index) ? index : -1); }

/// Removes a text. If it is selected, none is afterwards: the box would select a neighbour.
void ComboBoxItem::removeEntry(int index) {
    if (index == m_combo.currentIndex()) {
        m_combo.setCurrentIndex(-1);
    }
    m_combo.removeItem(index);
}

void ComboBoxItem::showEntryText(int index, const QString& text) {
    if (isIndex(index)) {
        m_combo.setItemText(index, text);
    }
}

std::uintptr_t ComboBoxItem::getEntryValue(int index) const {
    return m_combo.itemData(index).toULongLong();
}

/// Adds a text. If none was selected, none is afterwards: the box would select its first text.
void ComboBoxItem::insert(int index, const QString& text, std::uintptr_t value) {
    const bool isNoneSelected = m_combo.currentIndex() < 0;
    const QString edited = m_combo.currentText();
    m_combo.insertItem(index, text, static_cast<qulonglong>(value));
    if (isNoneSelected) {
        m_combo.setCurrentIndex(-1);
        showText(edited);
    }
}

} // namespace zent::platform::qt
