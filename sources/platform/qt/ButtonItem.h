#pragma once

#include <QAbstractButton>
#include <QButtonGroup>

#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A push button, check box, radio button or owner-drawn button.
class ButtonItem final : public Item {
public:
    ButtonItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_button.text(); }
    void setText(const QString& text) override { m_button.setText(text); }
    bool isMarkedButton() const override;

    bool isChecked() const { return m_button.isChecked(); }
    /// Leaves the other buttons of the group alone.
    void setChecked(bool isChecked);

    bool isDefault() const;
    void makeDefault();
    /// Of radio buttons that switch each other off. Gives whether this is one.
    bool joinGroup(QButtonGroup& group);

private:
    ButtonItem(Dialog& dialog, const DialogTemplate::Item& source, QAbstractButton& button);

    QAbstractButton& m_button;
};

} // namespace zent::platform::qt
