#pragma once

#include <QPlainTextEdit>

#include "platform/qt/EditItem.h"

namespace zent::platform::qt {

/// An edit item of several lines.
class TextEditItem final : public EditItem {
public:
    TextEditItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_edit.toPlainText(); }
    void showText(const QString& text) override;
    void selectText(std::int32_t start, std::int32_t end) override;
    void setTransparent() override;

private:
    class Pane;

    TextEditItem(Dialog& dialog, const DialogTemplate::Item& source, QPlainTextEdit& edit);
    QString accept(const QString& entered) const;
    void noticeChange();

    QPlainTextEdit& m_edit;
    QString m_lastText;
};

} // namespace zent::platform::qt
