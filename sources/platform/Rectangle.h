#pragma once

#include <cstdint>

namespace zent::platform {

/// A rectangle in pixels; right and bottom lie just outside.
struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    std::int32_t width() const { return right - left; }
    std::int32_t height() const { return bottom - top; }
    bool operator==(const Rectangle&) const = default;
};

} // namespace zent::platform
