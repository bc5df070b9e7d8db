#include "platform/qt/ChoiceItem.h"

#include <algorithm>

#include "platform/qt/Text.h"

namespace zent::platform::qt {

int ChoiceItem::add(std::u16string_view text, std::uintptr_t value, int position) {
    const QString entry = toQt(text);
    const int index = position >= 0 ? std::min(position, getCount())
                      : m_isSorted  ? findPlace(entry)
                                    : getCount();
    insert(index, entry, value);
    return index;
}

std::u16string ChoiceItem::getEntryText(int index) const { return fromQt(entryText(index)); }

void ChoiceItem::setEntryText(int index, std::u16string_view text) {
    showEntryText(index, toQt(text));
}

/// The position after all texts that don't sort after this one.
int ChoiceItem::findPlace(const QString& text) const {
    int first = 0;
    int last = getCount();
    while (first < last) {
        const int middle = first + (last - first) / 2;
        if (text.localeAwareCompare(entryText(middle)) < 0) {
            last = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

} // namespace zent::platform::qt
