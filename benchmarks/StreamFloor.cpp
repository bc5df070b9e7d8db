#include "StreamFloor.h"

#include <charconv>
#include <cstdio>

namespace zent::bench {

namespace {

/// Finds the next number that snprintf writes as the stream has it; the end if there is none.
std::size_t findNumber(std::string_view text) {
    constexpr std::string_view digits = "0123456789";
    std::size_t at = text.find_first_of(digits);
    while (at < text.size()) {
        const std::size_t end = std::min(text.find_first_not_of(digits, at), text.size());
        const std::size_t length = end - at;
        if (length == 1 || (length < 10 && text[at] != '0')) {
            return at;
        }
        at = text.find_first_of(digits, end);
    }
    return text.size();
}

} // namespace

StreamFloor::StreamFloor(std::string_view stream) {
    const std::size_t size = stream.size();
    while (!stream.empty()) {
        const std::size_t begin = findNumber(stream);
        const std::string_view text = stream.substr(0, begin);
        stream.remove_prefix(begin);
        if (stream.empty()) {
            m_end = text;
            break;
        }
        long number = 0;
        const auto [end, error] = std::from_chars(stream.begin(), stream.end(), number);
        stream.remove_prefix(static_cast<std::size_t>(end - stream.begin()));
        m_pieces.push_back({std::string(text), number});
    }
    m_written.resize(size + 1); // snprintf ends its text with a zero
}

std::string_view StreamFloor::write() {
    std::size_t size = 0;
    const auto room = [&] { return m_written.size() - size; };
    for (const Piece& piece : m_pieces) {
        size += static_cast<std::size_t>(std::snprintf(m_written.data() + size, room(), "%s%ld",
                                                       piece.text.c_str(), piece.number));
    }
    size += static_cast<std::size_t>(
        std::snprintf(m_written.data() + size, room(), "%s", m_end.c_str()));
    return std::string_view(m_written).substr(0, size);
}

} // namespace zent::bench
