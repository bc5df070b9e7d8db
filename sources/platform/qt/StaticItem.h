#pragma once

#include <QFrame>
#include <QLabel>

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A text, picture or line.
class StaticItem final : public Item, public PictureItem {
public:
    StaticItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures);

    QString text() const override { return m_text; }
    void showText(const QString& text) override;
    void setBitmap(std::uint32_t bitmap, bool clearsGround) override;
    void watchMouse() override;
    /// Sets the item of which this label is the name.
    void setBuddy(QWidget& widget);

private:
    class Label;

    StaticItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures,
               Label& label);
    void showTemplatesPicture(const DialogTemplate::Name& title);
    void alignText();
    void drawAsLine();

    Label& m_label;
    Pictures& m_pictures;
    QString m_text;
};

} // namespace zent::platform::qt
