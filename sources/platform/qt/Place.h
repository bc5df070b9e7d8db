#pragma once

#include <QRect>

#include "platform/Rectangle.h"

/// Places of the port and Qt's.
namespace zent::platform::qt {

inline QRect toQt(const Rectangle& place) {
    return {place.left, place.top, place.width(), place.height()};
}

inline Rectangle fromQt(const QRect& place) {
    return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

} // namespace zent::platform::qt
