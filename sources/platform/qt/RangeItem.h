#pragma once

#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// An item that stands for a whole number within a range.
class RangeItem : public Item {
public:
    virtual void setRange(int lower, int upper) = 0;
    virtual int position() const = 0;
    virtual void setPosition(int position) = 0;

protected:
    using Item::Item;
};

} // namespace zent::platform::qt
