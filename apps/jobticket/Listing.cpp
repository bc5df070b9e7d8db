#include "Listing.h"

#include <algorithm>

#include "Command.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

constexpr std::size_t widestColumn = 40;

/// The number of characters of UTF-8 text: bytes that continue a character don't count.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

} // namespace

std::string layOut(std::vector<Row> rows) {
    std::vector<std::size_t> widths;
    for (Row& row : rows) {
        std::ranges::transform(row, row.begin(),
                               [](const std::string& cell) { return toPrintable(cell); });
    }
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column + 1 < row.size(); ++column) {
            const std::size_t width = std::min(widthOf(row[column]), widestColumn);
            widths[column] = std::max(widths[column], width);
        }
    }
    std::string text;
    for (const Row& row : rows) {
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

namespace {

std::string escaped(unsigned char byte) {
    switch (byte) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\u00") + digits[byte >> 4U] + digits[byte & 0xFU];
}

bool isEscaped(unsigned char byte) {
    return byte < 0x20U || byte == 0x7FU || byte == '"' || byte == '\\';
}

/// Puts a text into quotation marks. Control characters are escaped, even those above ASCII, so
/// that no text steers a terminal.
std::string quoted(std::string_view content) {
    std::string text = "\"";
    for (std::size_t index = 0; index < content.size(); ++index) {
        const auto byte = static_cast<unsigned char>(content[index]);
        const auto next =
            static_cast<unsigned char>(index + 1 < content.size() ? content[index + 1] : 0);
        if (byte == 0xC2U && next >= 0x80U && next < 0xA0U) { // U+0080 to U+009F
            text += escaped(next);
            ++index;
        } else {
            text += isEscaped(byte) ? escaped(byte) : std::string(1, content[index]);
        }
    }
    return text + '"';
}

void addLineEnd(std::string& text, std::size_t depth) {
    text += '\n';
    text.append(2 * depth, ' ');
}

} // namespace

Json::Json(std::string_view text) : m_text(quoted(text)) {}

Json& Json::add(Json element) {
    m_values.push_back(std::move(element));
    return *this;
}

Json& Json::add(std::string_view name, Json value) {
    m_names.emplace_back(name);
    return add(std::move(value));
}

std::string Json::toText() const {
    std::string text;
    write(text, 0);
    return text + '\n';
}

/// Whether a value is written on one line: arrays and objects that hold only scalars, such as the
/// two ends of a range, are.
bool Json::isFlat() const {
    return std::ranges::all_of(m_values,
                               [](const Json& value) { return value.m_kind == Kind::scalar; });
}

void Json::write(std::string& text, std::size_t depth) const {
    if (m_kind == Kind::scalar) {
        text += m_text;
        return;
    }
    const bool isObject = m_kind == Kind::object;
    const bool isOnOneLine = isFlat();
    text += isObject ? '{' : '[';
    for (std::size_t index = 0; index < m_values.size(); ++index) {
        text += index == 0 ? "" : ",";
        if (!isOnOneLine) {
            addLineEnd(text, depth + 1);
        } else if (index > 0) {
            text += ' ';
        }
        text += isObject ? quoted(m_names[index]) + ": " : "";
        m_values[index].write(text, depth + 1);
    }
    if (!isOnOneLine) {
        addLineEnd(text, depth);
    }
    text += isObject ? '}' : ']';
}

namespace {

std::string joinByTabs(const std::vector<Row>& rows) {
    std::string text;
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            text += (column == 0 ? "" : "\t") + row[column];
        }
        text += '\n';
    }
    return text;
}

} // namespace

void printListing(const Listing& listing, const Options& options) {
    writeStandardOutput(options.listsJson    ? listing.asJson().toText()
                        : options.listsTable ? joinByTabs(listing.asTable())
                                             : listing.asText());
}

} // namespace jobticket
