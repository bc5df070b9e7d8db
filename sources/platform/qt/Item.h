#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <QString>
#include <QWidget>

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
class Item {
public:
    /// Makes an item of the class that the template names; null if there is no such class.
    static std::unique_ptr<Item> make(Dialog& dialog, const DialogTemplate::Item& source,
                                      Pictures& pictures);

    virtual ~Item() = default;
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;

    QWidget& widget() const { return m_widget; }
    std::uint16_t id() const { return m_id; }
    std::uint32_t style() const { return m_style; }
    bool hasStyle(std::uint32_t bits) const { return (m_style & bits) == bits; }

    virtual QString text() const { return {}; }
    virtual void setText(const QString& /*text*/) {}
    /// The text as the port has it.
    virtual std::u16string contents() const;
    virtual void setContents(std::u16string_view contents);
    /// As WindowSystem::Item tells it.
    virtual bool isMarkedButton() const { return false; }
    /// The keyboard's focus went elsewhere.
    virtual void leaveFocus() {}

protected:
    /// The widget is the dialog's child. Takes place, visibility and the like from the template.
    Item(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget);

    Dialog& dialog() const { return m_dialog; }

private:
    Dialog& m_dialog;
    QWidget& m_widget;
    std::uint16_t m_id;
    std::uint32_t m_style;
};

/// The text of a title; empty for a number.
QString textOf(const DialogTemplate::Name& name);

} // namespace zent::platform::qt
