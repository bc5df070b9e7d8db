#pragma once

#include <QAbstractSlider>

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A slider or scroll bar.
class SliderItem : public Item, public RangeItem {
public:
    void setRange(int lower, int upper) override;
    int getPosition() const override { return m_slider.value(); }
    void setPosition(int position) override;

protected:
    SliderItem(Dialog& dialog, const DialogTemplate::Item& source, QAbstractSlider& slider);

private:
    QAbstractSlider& m_slider;
};

class TrackBarItem final : public SliderItem {
public:
    TrackBarItem(Dialog& dialog, const DialogTemplate::Item& source);
};

class ScrollBarItem final : public SliderItem {
public:
    ScrollBarItem(Dialog& dialog, const DialogTemplate::Item& source);
};

} // namespace zent::platform::qt
