#pragma once

#include <cstdint>
#include <memory>

#include <QString>
#include <QWidget>

#include "platform/DialogItem.h"
#include "platform/DialogTemplate.h"

namespace zent::platform::qt {

class Dialog;
class Pictures;

/// Styles that all classes of items share.
namespace itemStyle {
constexpr std::uint32_t visible = 0x10000000;
constexpr std::uint32_t disabled = 0x08000000;
constexpr std::uint32_t border = 0x00800000;
constexpr std::uint32_t group = 0x00020000;
constexpr std::uint32_t tabStop = 0x00010000;
} // namespace itemStyle

/// An item of a dialog, with its widget. Each kind of item is a class of its own, with what it
/// alone can do; what the user does to it, it tells the dialog.
class Item : public virtual DialogItem {
public:
    /// Makes an item of the class that the template names; null if there is no such class.
    static std::unique_ptr<Item> make(Dialog& dialog, const DialogTemplate::Item& source,
                                      Pictures& pictures);

    bool isThere() const override { return m_isThere; }
    std::uint16_t getId() const override { return m_id; }
    Rectangle getPlace() const override;
    void moveTo(const Rectangle& place) override;
    Rectangle getScreenPlace() const override;
    bool isShown() const override { return !m_widget.isHidden(); }
    void show(bool isShown) override { m_widget.setVisible(isShown); }
    bool isEnabled() const override { return m_widget.isEnabledTo(m_widget.window()); }
    void enable(bool isEnabled) override { m_widget.setEnabled(isEnabled); }
    void focus() override { m_widget.setFocus(Qt::OtherFocusReason); }
    void remove() override;
    std::u16string getText() const override;
    void setText(std::u16string_view text) override;
    std::int32_t getTextWidth(std::u16string_view text) const override;
    void setToolTip(std::u16string_view text) override;

    QWidget& widget() const { return m_widget; }
    std::uint32_t style() const { return m_style; }
    bool hasStyle(std::uint32_t bits) const { return (m_style & bits) == bits; }

    virtual QString text() const { return {}; }
    virtual void showText(const QString& /*text*/) {}
    /// Reports that the keyboard's focus went elsewhere.
    virtual void leaveFocus() {}

protected:
    /// The widget is the child of the dialog's surface. Takes place, visibility and the like from
    /// the template.
    Item(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget);

    Dialog& dialog() const { return m_dialog; }

private:
    Dialog& m_dialog;
    QWidget& m_widget;
    std::uint16_t m_id;
    std::uint32_t m_style;
    bool m_isThere = true;
};

/// The text of a title; empty for one that is a number.
QString textOf(const DialogTemplate::Name& name);

} // namespace zent::platform::qt
