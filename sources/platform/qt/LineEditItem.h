#pragma once

#include <QLineEdit>

#include "platform/qt/EditItem.h"

namespace zent::platform::qt {

/// An edit item of one line. Line ends in a text that the program sets stay as they are.
class LineEditItem final : public EditItem {
public:
    LineEditItem(Dialog& dialog, const DialogTemplate::Item& source);

    QString text() const override { return m_edit.text(); }
    void showText(const QString& text) override;
    std::u16string getText() const override { return m_edit.text().toStdU16String(); }
    void setText(std::u16string_view text) override;
    void selectText(std::int32_t start, std::int32_t end) override;
    void setTransparent() override;

private:
    class Entry;

    LineEditItem(Dialog& dialog, const DialogTemplate::Item& source, Entry& edit);
    QString accept(const QString& entered) const;

    QLineEdit& m_edit;
};

} // namespace zent::platform::qt
