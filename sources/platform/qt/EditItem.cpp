#include "platform/qt/EditItem.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "platform/qt/Dialog.h"
#include "platform/qt/EditStyle.h"
#include "platform/qt/LineEditItem.h"
#include "platform/qt/TextEditItem.h"

namespace zent::platform::qt {

namespace {

constexpr std::size_t usualLimit = 32767;

/// The number that a text begins with; 0 if it is none, or too large for its type.
template <typename Number>
std::int32_t leadingNumber(const QString& text) {
    const QStringView trimmed = QStringView(text).trimmed();
    const bool isNegative = std::is_signed_v<Number> && trimmed.startsWith(u'-');
    const auto* const end = std::find_if_not(trimmed.begin() + (isNegative ? 1 : 0), trimmed.end(),
                                             [](QChar c) { return c >= u'0' && c <= u'9'; });
    const qlonglong number = trimmed.left(end - trimmed.begin()).toLongLong();
    return std::in_range<Number>(number) ? static_cast<std::int32_t>(number) : 0;
}

} // namespace

std::unique_ptr<Item> EditItem::make(Dialog& dialog, const DialogTemplate::Item& source) {
    if ((source.style & editStyle::lines) != 0) {
        return std::make_unique<TextEditItem>(dialog, source);
    }
    return std::make_unique<LineEditItem>(dialog, source);
}

EditItem::EditItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget)
    : Item(dialog, source, widget) {
    m_rule.limit = usualLimit;
    m_rule.hasLines = hasStyle(editStyle::lines);
    m_rule.isNumber = hasStyle(editStyle::number);
}

void EditItem::setNumber(std::int32_t number, bool isSigned) {
    setText(isSigned ? QString::number(number)
                     : QString::number(static_cast<std::uint32_t>(number)));
}

std::int32_t EditItem::number(bool isSigned) const {
    return isSigned ? leadingNumber<std::int32_t>(text()) : leadingNumber<std::uint32_t>(text());
}

void EditItem::setLimit(std::uint32_t units) {
    m_rule.limit = units == 0 ? std::numeric_limits<std::size_t>::max() : units;
}

void EditItem::leaveFocus() { dialog().tellCommand(id(), notification::editLeft); }

void EditItem::tellChanged() { dialog().tellCommand(id(), notification::editChanged); }

Qt::Alignment EditItem::alignment() const {
    return hasStyle(editStyle::center)  ? Qt::AlignHCenter
           : hasStyle(editStyle::right) ? Qt::AlignRight
                                        : Qt::AlignLeft;
}

} // namespace zent::platform::qt
