#include "platform/qt/EditItem.h"

#include <limits>

#include "platform/qt/Dialog.h"
#include "platform/qt/EditStyle.h"
#include "platform/qt/LineEditItem.h"
#include "platform/qt/TextEditItem.h"

namespace zent::platform::qt {

namespace {

constexpr std::size_t usualLimit = 32767;

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

void EditItem::setLimit(std::uint32_t units) {
    m_rule.limit = units == 0 ? std::numeric_limits<std::size_t>::max() : units;
}

void EditItem::leaveFocus() { dialog().tellCommand(getId(), notification::editLeft); }

void EditItem::tellChanged() { dialog().tellCommand(getId(), notification::editChanged); }

Qt::Alignment EditItem::alignment() const {
    return hasStyle(editStyle::center)  ? Qt::AlignHCenter
           : hasStyle(editStyle::right) ? Qt::AlignRight
                                        : Qt::AlignLeft;
}

} // namespace zent::platform::qt
