#pragma once

#include <QComboBox>

#include "platform/qt/ListItem.h"

namespace zent::platform::qt {

/// A list of texts that drops down, below a text to edit or not.
class ComboBoxItem final : public ListItem {
public:
    ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_combo.currentText(); }
    void setText(const QString& text) override;
    int count() const override { return m_combo.count(); }
    int selected() const override;
    void select(int index) override;
    void clear() override { m_combo.clear(); }
    void remove(int index) override;
    QString entryText(int index) const override { return m_combo.itemText(index); }
    void setEntryText(int index, const QString& text) override;
    std::uintptr_t entryValue(int index) const override;

private:
    ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QComboBox& combo);
    void insert(int index, const QString& text, std::uintptr_t value) override;
    void letEdit();

    QComboBox& m_combo;
};

} // namespace zent::platform::qt
