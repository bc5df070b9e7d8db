#pragma once

#include <cstdint>
#include <string_view>

#include "ocore/Text/CXString.h"

namespace zent {

/// What a number box takes and shows.
enum class NumberType : std::int32_t { unsignedInteger = 1, decimal = 2, signedInteger = 3 };

/// The length that the text of a number needs: its digits, and the sign of a negative one.
std::uint16_t countDigits(std::int32_t number);

/// The whole number that a text begins with, after spaces; 0 if it is none, or has more than 32
/// bits. A "-" belongs to it only if it is signed.
std::int64_t parseInteger(std::u16string_view text, bool isSigned);
/// The number that a text begins with, 0 if it is none. The point is a point in every locale.
double parseDecimal(std::u16string_view text);
/// With two digits after the point if so many are asked for, with one for any other number.
CXString formatDecimal(double value, std::uint32_t decimals);

/// The bounds of a number box, which are both allowed.
template <typename Number>
struct NumberBounds {
    Number lower;
    Number upper;
};

/// One step of a spin: a unit of the last decimal, against the sign of `delta`. What would leave
/// the bounds stays as it is. A null pointer stands for no bounds.
double stepDecimal(double value, std::uint32_t decimals, std::int32_t delta,
                   const NumberBounds<double>* bounds);
/// One step of a spin by 1. What would leave the bounds, or 32 bits, becomes the bound.
std::int32_t stepInteger(double value, std::int32_t delta,
                         const NumberBounds<std::int32_t>* bounds);

} // namespace zent
