#pragma once

#include <cstdint>

/// Styles of edit items.
namespace zent::platform::qt::editStyle {

constexpr std::uint32_t center = 1;
constexpr std::uint32_t right = 2;
constexpr std::uint32_t lines = 4;
constexpr std::uint32_t password = 0x20;
constexpr std::uint32_t scrollsAcross = 0x80; // instead of breaking lines
constexpr std::uint32_t readOnly = 0x800;
constexpr std::uint32_t takesEnter = 0x1000;
constexpr std::uint32_t number = 0x2000;

} // namespace zent::platform::qt::editStyle
