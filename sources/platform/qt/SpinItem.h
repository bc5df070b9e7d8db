#pragma once

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// Two arrows, mostly beside an edit item, its buddy, that shows the number.
class SpinItem final : public Item, public RangeItem {
public:
    SpinItem(Dialog& dialog, const DialogTemplate::Item& source);

    void setRange(int lower, int upper) override;
    int getPosition() const override { return m_position; }
    void setPosition(int position) override;

    bool wantsBuddy() const;
    /// The buddy makes room for the arrows.
    void setBuddy(Item& buddy);

private:
    class Arrows;

    SpinItem(Dialog& dialog, const DialogTemplate::Item& source, Arrows& arrows);
    void step(int steps);

    Item* m_buddy = nullptr;
    int m_lower = 0;
    int m_upper = 100;
    int m_position = 0;
};

} // namespace zent::platform::qt
