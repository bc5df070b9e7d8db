#pragma once

#include <QAbstractButton>
#include <QButtonGroup>

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A push button, check box, radio button or owner-drawn button.
class ButtonItem final : public Item, public platform::ButtonItem {
public:
    ButtonItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_button.text(); }
    void showText(const QString& text) override { m_button.setText(text); }
    bool isMarkedButton() const override;

    bool isChecked() const override { return m_button.isChecked(); }
    void setChecked(bool isChecked) override;

    bool isDefault() const override;
    void makeDefault() override;
    /// Joins a group of radio buttons that switch each other off, if this is one. Says whether it
    /// is.
    bool joinGroup(QButtonGroup& group);

private:
    ButtonItem(Dialog& dialog, const DialogTemplate::Item& source, QAbstractButton& button);

    QAbstractButton& m_button;
};

} // namespace zent::platform::qt
