#include "platform/qt/ListItem.h"

#include <algorithm>

namespace zent::platform::qt {

int ListItem::add(const QString& text, std::uintptr_t value, int position) {
    const int index = position >= 0 ? std::min(position, count())
                      : m_isSorted  ? findPlace(text)
                                    : count();
    insert(index, text, value);
    return index;
}

/// Behind all texts that don't come after this one.
int ListItem::findPlace(const QString& text) const {
    int first = 0;
    int last = count();
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
