#pragma once

#include <QFont>
#include <QRect>
#include <QSizeF>

#include "platform/DialogTemplate.h"
#include "platform/Rectangle.h"

namespace zent::platform::qt {

/// Dialog units as pixels: a quarter of a font's average letter across, an eighth of a line down.
class DialogUnits {
public:
    explicit DialogUnits(const QFont& font);

    Rectangle toPixels(const Rectangle& units) const;
    QRect toPixels(const DialogTemplate::Place& place) const;

private:
    QSizeF m_letter; // in pixels
};

} // namespace zent::platform::qt
