#pragma once

#include <cstdint>

/// Styles of combo boxes.
namespace zent::platform::qt::comboStyle {

constexpr std::uint32_t sorted = 0x100;

/// The kinds: the lowest two bits.
constexpr std::uint32_t simple = 1;
constexpr std::uint32_t dropDown = 2; // with a text to edit
constexpr std::uint32_t dropDownList = 3;
constexpr std::uint32_t kindOf(std::uint32_t style) { return style & 3; }

} // namespace zent::platform::qt::comboStyle
