#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

/// The name of the list that a text is meant for, maybe: one that begins with it, else one that it
/// is a part of, else the one that comes closest. Empty if none does; none does to a number.
std::string findNearest(std::string_view text, const std::vector<std::string>& names);

} // namespace jobticket
