#include "Json.h"

#include <algorithm>

namespace jobticket {

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

/// Controls are escaped, also those above ASCII, so that no text steers a terminal.
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

/// Scalars alone, such as the two ends of a range, need no lines of their own.
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

} // namespace jobticket
