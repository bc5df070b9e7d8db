#pragma once

#include <QLineEdit>

#include "platform/qt/EditItem.h"

namespace zent::platform::qt {

/// An edit item of one line.
class LineEditItem final : public EditItem {
public:
    LineEditItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_edit.text(); }
    void setText(const QString& text) override;
    void select(std::int32_t start, std::int32_t end) override;
    void setTransparent() override;

private:
    class Entry;

    LineEditItem(Dialog& dialog, const DialogTemplate::Item& source, QLineEdit& edit);

    QLineEdit& m_edit;
    QString m_before; // the text before the change at hand
    bool m_isProgramsChange = false;
};

} // namespace zent::platform::qt
