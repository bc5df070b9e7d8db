#include "platform/qt/Item.h"

#include <algorithm>
#include <iterator>

#include "platform/qt/ButtonItem.h"
#include "platform/qt/ComboBoxItem.h"
#include "platform/qt/Dialog.h"
#include "platform/qt/EditItem.h"
#include "platform/qt/GroupBoxItem.h"
#include "platform/qt/ListBoxItem.h"
#include "platform/qt/ListViewItem.h"
#include "platform/qt/Place.h"
#include "platform/qt/SimpleComboItem.h"
#include "platform/qt/SliderItem.h"
#include "platform/qt/SpinItem.h"
#include "platform/qt/StaticItem.h"
#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

using Source = DialogTemplate::Item;
using Maker = std::unique_ptr<Item> (*)(Dialog&, const Source&, Pictures&);

template <typename T>
std::unique_ptr<Item> makePlain(Dialog& dialog, const Source& source, Pictures& /*pictures*/) {
    return std::make_unique<T>(dialog, source);
}

template <typename T>
std::unique_ptr<Item> makeWithPictures(Dialog& dialog, const Source& source, Pictures& pictures) {
    return std::make_unique<T>(dialog, source, pictures);
}

std::unique_ptr<Item> makeButton(Dialog& dialog, const Source& source, Pictures& pictures) {
    return GroupBoxItem::isKindOf(source) ? makePlain<GroupBoxItem>(dialog, source, pictures)
                                          : makePlain<ButtonItem>(dialog, source, pictures);
}

std::unique_ptr<Item> makeEdit(Dialog& dialog, const Source& source, Pictures& /*pictures*/) {
    return EditItem::make(dialog, source);
}

std::unique_ptr<Item> makeComboBox(Dialog& dialog, const Source& source, Pictures& pictures) {
    return SimpleComboItem::isKindOf(source) ? makePlain<SimpleComboItem>(dialog, source, pictures)
                                             : makePlain<ComboBoxItem>(dialog, source, pictures);
}

/// A class of items, by the number that it has in templates, 0 for none, and its name.
struct ItemClass {
    std::uint16_t number;
    const char* name;
    Maker make;
};

const ItemClass classes[] = {
    {0x80, "Button", makeButton},
    {0x81, "Edit", makeEdit},
    {0x82, "Static", makeWithPictures<StaticItem>},
    {0x83, "ListBox", makePlain<ListBoxItem>},
    {0x84, "ScrollBar", makePlain<ScrollBarItem>},
    {0x85, "ComboBox", makeComboBox},
    {0, "msctls_trackbar32", makePlain<TrackBarItem>},
    {0, "msctls_updown32", makePlain<SpinItem>},
    {0, "SysListView32", makeWithPictures<ListViewItem>},
};

bool isNamed(const ItemClass& itemClass, const DialogTemplate::Name& name) {
    const auto* const number = std::get_if<std::uint16_t>(&name);
    return number != nullptr
               ? *number != 0 && *number == itemClass.number
               : textOf(name).compare(QLatin1String(itemClass.name), Qt::CaseInsensitive) == 0;
}

} // namespace

QString textOf(const DialogTemplate::Name& name) {
    const auto* const text = std::get_if<std::u16string>(&name);
    return text != nullptr ? toQt(*text) : QString();
}

std::unique_ptr<Item> Item::make(Dialog& dialog, const DialogTemplate::Item& source,
                                 Pictures& pictures) {
    const auto* const found =
        std::find_if(std::begin(classes), std::end(classes), [&](const ItemClass& itemClass) {
            return isNamed(itemClass, source.windowClass);
        });
    return found == std::end(classes) ? nullptr : found->make(dialog, source, pictures);
}

Item::Item(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget)
    : m_dialog(dialog), m_widget(widget), m_id(source.id), m_style(source.style) {
    // Tests, and other programs that look at windows, find the item by this name.
    widget.setObjectName(QString::number(m_id));
    widget.setGeometry(dialog.units().toPixels(source.place));
    widget.setVisible(hasStyle(itemStyle::visible));
    widget.setEnabled(!hasStyle(itemStyle::disabled));
    if (widget.focusPolicy() != Qt::NoFocus) {
        widget.setFocusPolicy(hasStyle(itemStyle::tabStop) ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

Rectangle Item::getPlace() const { return fromQt(m_widget.geometry()); }

void Item::moveTo(const Rectangle& place) { m_widget.setGeometry(toQt(place)); }

Rectangle Item::getScreenPlace() const {
    return fromQt(QRect(m_widget.mapToGlobal(QPoint(0, 0)), m_widget.size()));
}

/// The object stays, since an event of the item itself may be what removes it.
void Item::remove() {
    m_isThere = false;
    m_widget.hide();
    m_widget.setObjectName(QString());
}

std::u16string Item::getText() const { return fromQt(text()); }

void Item::setText(std::u16string_view text) { showText(toQt(text)); }

std::int32_t Item::getTextWidth(std::u16string_view text) const {
    return m_widget.fontMetrics().horizontalAdvance(toQt(text));
}

/// A tool tip that looks like markup would be shown as that.
void Item::setToolTip(std::u16string_view text) {
    const QString shown = toQt(text);
    m_widget.setToolTip(Qt::mightBeRichText(shown) ? shown.toHtmlEscaped() : shown);
}

} // namespace zent::platform::qt
