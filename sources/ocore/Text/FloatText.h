#pragma once

#include <cstddef>
#include <string>

namespace zent {

/// The digits of a number that isn't negative, as printf writes them for the conversion `form`
/// ('e', 'f' or 'g'), whatever the locale. `alternate` is printf's "#": always a point, and with
/// 'g' all zeros.
std::string floatText(double magnitude, char form, std::size_t precision, bool alternate);

} // namespace zent
