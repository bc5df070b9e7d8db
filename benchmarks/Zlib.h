#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zent::bench {

/// Deflates at zlib's default level, as the library does. The bytes are valid until the next call.
class Deflater {
public:
    std::string_view deflate(std::string_view bytes);

private:
    std::string m_deflated;
};

/// Expands a zlib stream of known size, whatever follows it. The bytes are valid until the next
/// call; damage throws std::runtime_error.
class Inflater {
public:
    std::string_view inflate(std::string_view stream, std::size_t size);

private:
    std::string m_inflated;
};

} // namespace zent::bench
