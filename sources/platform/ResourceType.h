#pragma once

#include <cstdint>

/// Numbers of resource types in a PE file.
namespace zent::platform::resourceType {

constexpr std::uint32_t cursor = 1;
constexpr std::uint32_t bitmap = 2;
constexpr std::uint32_t icon = 3;
constexpr std::uint32_t dialog = 5;
constexpr std::uint32_t stringBlock = 6;
constexpr std::uint32_t rawData = 10;
constexpr std::uint32_t iconGroup = 14;

} // namespace zent::platform::resourceType
