#pragma once

#include <string>
#include <vector>

namespace jobticket {

/// Lays rows out in columns that are as wide as they have to be, one line a row. A cell that is
/// wider than most pushes the rest of its line to the right instead of widening the column. Texts
/// are made printable.
std::string layOut(std::vector<std::vector<std::string>> rows);

} // namespace jobticket
