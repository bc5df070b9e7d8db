#pragma once

#include <QGroupBox>

#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A titled frame around other items.
class GroupBoxItem final : public Item {
public:
    GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source);

    /// Whether a button of the template is a group box.
    static bool isKindOf(const DialogTemplate::Item& source) { return (source.style & 0xF) == 7; }

    QString text() const override { return m_box.title(); }
    void showText(const QString& text) override { m_box.setTitle(text); }
    bool isMarkedButton() const override { return true; }

private:
    class Box;

    GroupBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QGroupBox& box);

    QGroupBox& m_box;
};

} // namespace zent::platform::qt
