#include "Spelling.h"

#include <algorithm>
#include <numeric>

namespace jobticket {

namespace {

/// The number of letters to insert, leave out or replace, to make one text of another.
std::size_t editDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

/// Of the names that begin with a text, or else hold it, the shortest; empty if there is none.
std::string findShortestWith(std::string_view text, const std::vector<std::string>& names) {
    constexpr std::size_t leastPart = 3; // what is shorter stands in many names by chance
    std::string found;
    bool isStart = false;
    for (const std::string& name : names) {
        const bool starts = name.starts_with(text);
        if (text.size() < (starts ? leastPart - 1 : leastPart) ||
            name.find(text) == std::string::npos || (isStart && !starts)) {
            continue;
        }
        if (found.empty() || (starts && !isStart) || name.size() < found.size()) {
            found = name;
            isStart = starts;
        }
    }
    return found;
}

} // namespace

std::string findNearest(std::string_view text, const std::vector<std::string>& names) {
    constexpr std::size_t longestText = 64; // beyond that it is no misspelt name
    const bool isNumber = text.find_first_not_of("0123456789") == std::string_view::npos;
    if (isNumber || text.size() > longestText) {
        return {};
    }
    if (const std::string name = findShortestWith(text, names); !name.empty()) {
        return name;
    }
    std::string nearest;
    std::size_t best = text.size() / 3 + 2; // a slip in every third letter, and one more
    for (const std::string& name : names) {
        const std::size_t distance = editDistance(text, name);
        if (distance < best) {
            best = distance;
            nearest = name;
        }
    }
    return nearest;
}

} // namespace jobticket
