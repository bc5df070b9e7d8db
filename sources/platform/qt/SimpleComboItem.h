#pragma once

#include <QLineEdit>

#include "platform/qt/ComboStyle.h"
#include "platform/qt/OpenListItem.h"

namespace zent::platform::qt {

/// A combo box whose list is open all the time, below a text to edit.
class SimpleComboItem final : public OpenListItem {
public:
    SimpleComboItem(Dialog& dialog, const DialogTemplate::Item& source);

    /// Whether a combo box of the template is of this kind.
    static bool isKindOf(const DialogTemplate::Item& source) {
        return comboStyle::kindOf(source.style) <= comboStyle::simple;
    }

    QString text() const override { return m_edit.text(); }
    void showText(const QString& text) override { m_edit.setText(text); }
    void select(int index) override;
    void clear() override;

private:
    class Entry;

    SimpleComboItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& box);

    QLineEdit& m_edit;
};

} // namespace zent::platform::qt
