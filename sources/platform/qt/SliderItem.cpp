#include "platform/qt/SliderItem.h"

#include <algorithm>

#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

namespace {

QSlider& makeTrackBar(Dialog& dialog, std::uint32_t style) {
    constexpr std::uint32_t vertical = 2;
    constexpr std::uint32_t marksAbove = 4;
    constexpr std::uint32_t marksOnBothSides = 8;
    constexpr std::uint32_t noMarks = 0x10;
    auto& slider =
        *new QSlider((style & vertical) != 0 ? Qt::Vertical : Qt::Horizontal, &dialog.surface());
    slider.setTickPosition((style & noMarks) != 0            ? QSlider::NoTicks
                           : (style & marksOnBothSides) != 0 ? QSlider::TicksBothSides
                           : (style & marksAbove) != 0       ? QSlider::TicksAbove
                                                             : QSlider::TicksBelow);
    return slider;
}

QScrollBar& makeScrollBar(Dialog& dialog, std::uint32_t style) {
    constexpr std::uint32_t vertical = 1;
    return *new QScrollBar((style & vertical) != 0 ? Qt::Vertical : Qt::Horizontal,
                           &dialog.surface());
}

} // namespace

SliderItem::SliderItem(Dialog& dialog, const DialogTemplate::Item& source, QAbstractSlider& slider)
    : Item(dialog, source, slider), m_slider(slider) {
    slider.setRange(0, 100);
    QObject::connect(&slider, &QAbstractSlider::valueChanged, &slider,
                     [this](int position) { this->dialog().tellScroll(getId(), position); });
}

void SliderItem::setRange(int lower, int upper) {
    const QSignalBlocker blocker(m_slider);
    m_slider.setRange(lower, std::max(lower, upper));
}

void SliderItem::setPosition(int position) {
    const QSignalBlocker blocker(m_slider);
    m_slider.setValue(position);
}

TrackBarItem::TrackBarItem(Dialog& dialog, const DialogTemplate::Item& source)
    : SliderItem(dialog, source, makeTrackBar(dialog, source.style)) {}

ScrollBarItem::ScrollBarItem(Dialog& dialog, const DialogTemplate::Item& source)
    : SliderItem(dialog, source, makeScrollBar(dialog, source.style)) {}

} // namespace zent::platform::qt
