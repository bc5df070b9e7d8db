#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zent::bench {

/// The least that writing a ticket stream costs: snprintf from a flat list, one call for each
/// number with the text before it.
class StreamFloor {
public:
    /// Takes a stream apart.
    explicit StreamFloor(std::string_view stream);

    /// Writes the stream. The bytes are valid until the next call.
    std::string_view write();

private:
    struct Piece {
        std::string text;
        long number;
    };

    std::vector<Piece> m_pieces;
    std::string m_end; // the text after the last number
    std::string m_written;
};

} // namespace zent::bench
