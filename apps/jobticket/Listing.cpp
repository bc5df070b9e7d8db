#include "Listing.h"

#include <algorithm>

#include "Text.h"

namespace jobticket {

namespace {

constexpr std::size_t widestColumn = 40;

/// Characters, of UTF-8 text; the bytes that continue a character don't count.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

} // namespace

std::string layOut(std::vector<std::vector<std::string>> rows) {
    std::vector<std::size_t> widths;
    for (std::vector<std::string>& row : rows) {
        std::ranges::transform(row, row.begin(),
                               [](const std::string& cell) { return toPrintable(cell); });
    }
    for (const std::vector<std::string>& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column + 1 < row.size(); ++column) {
            const std::size_t width = std::min(widthOf(row[column]), widestColumn);
            widths[column] = std::max(widths[column], width);
        }
    }
    std::string text;
    for (const std::vector<std::string>& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::size_t width = widthOf(row[column]);
            line += row[column];
            line.append(width < widths[column] ? widths[column] - width : 0, ' ');
            line += "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

} // namespace jobticket
