#include "platform/qt/DialogUnits.h"

#include <algorithm>

#include <QFontMetricsF>

namespace zent::platform::qt {

DialogUnits::DialogUnits(const QFont& font) {
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const QFontMetricsF metrics(font);
    m_letter = {metrics.horizontalAdvance(letters) / static_cast<qreal>(letters.size()),
                metrics.height()};
}

Rectangle DialogUnits::toPixels(const Rectangle& units) const {
    const auto across = [this](int x) { return qRound(x * m_letter.width() / 4); };
    const auto down = [this](int y) { return qRound(y * m_letter.height() / 8); };
    return {across(units.left), down(units.top), across(units.right), down(units.bottom)};
}

QRect DialogUnits::toPixels(const DialogTemplate::Place& place) const {
    const Rectangle pixels = toPixels(Rectangle{place.x, place.y, place.width, place.height});
    return {pixels.left, pixels.top, std::max(pixels.right, 0), std::max(pixels.bottom, 0)};
}

} // namespace zent::platform::qt
