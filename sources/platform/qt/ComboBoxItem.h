#pragma once

#include <QComboBox>

#include "platform/qt/ChoiceItem.h"

namespace zent::platform::qt {

/// A list of texts that drops down below the chosen one, which the user may edit or not.
class ComboBoxItem final : public ChoiceItem {
public:
    ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_combo.currentText(); }
    void showText(const QString& text) override;
    int getCount() const override { return m_combo.count(); }
    int getSelected() const override;
    void select(int index) override;
    void clear() override { m_combo.clear(); }
    void removeEntry(int index) override;
    QString entryText(int index) const override { return m_combo.itemText(index); }
    void showEntryText(int index, const QString& text) override;
    std::uintptr_t getEntryValue(int index) const override;

private:
    ComboBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QComboBox& combo);
    void insert(int index, const QString& text, std::uintptr_t value) override;
    void letEdit();

    QComboBox& m_combo;
};

} // namespace zent::platform::qt
