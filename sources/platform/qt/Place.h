#pragma once

#include <QRect>

#include "platform/Rectangle.h"

/// Convert places of the port to Qt's, and back.
namespace zent::platform::qt {

inline QRect toQt(const Rectangle& place) {
    return {place.left, place.top, place.width(), place.height()};
}

inline Rectangle fromQt(const QRect& place) {
    return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

} // namespace zent::platform::qt
