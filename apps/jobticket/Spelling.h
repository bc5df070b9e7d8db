#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

/// The name of the list that comes closest to a text, or empty if none is near. Nothing is near to
/// a number.
std::string findNearest(std::string_view text, const std::vector<std::string>& names);

} // namespace jobticket
