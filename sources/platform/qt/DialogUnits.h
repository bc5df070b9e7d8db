#pragma once

#include <QFont>
#include <QRect>
#include <QSizeF>

#include "platform/DialogTemplate.h"
#include "platform/Rectangle.h"

namespace zent::platform::qt {

/// Converts dialog units to pixels: they are a quarter of a font's average letter wide, and an
/// eighth of a line high.
class DialogUnits {
public:
    explicit DialogUnits(const QFont& font);

    Rectangle toPixels(const Rectangle& units) const;
    QRect toPixels(const DialogTemplate::Place& place) const;

private:
    QSizeF m_letter; // in pixels
};

} // namespace zent::platform::qt
