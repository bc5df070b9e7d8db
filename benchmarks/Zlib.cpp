#include "Zlib.h"

#include <stdexcept>

#include <zlib.h>

namespace zent::bench {

namespace {

const Bytef* asZlib(std::string_view bytes) {
    return static_cast<const Bytef*>(static_cast<const void*>(bytes.data()));
}

Bytef* asZlib(std::string& bytes) { return static_cast<Bytef*>(static_cast<void*>(bytes.data())); }

} // namespace

std::string_view Deflater::deflate(std::string_view bytes) {
    auto size = compressBound(static_cast<uLong>(bytes.size()));
    if (m_deflated.size() < size) {
        m_deflated.resize(size);
    }
    if (compress2(asZlib(m_deflated), &size, asZlib(bytes), static_cast<uLong>(bytes.size()),
                  Z_DEFAULT_COMPRESSION) != Z_OK) {
        throw std::runtime_error("zlib doesn't deflate");
    }
    return std::string_view(m_deflated).substr(0, size);
}

std::string_view Inflater::inflate(std::string_view stream, std::size_t size) {
    if (m_inflated.size() < size) {
        m_inflated.resize(size);
    }
    auto made = static_cast<uLongf>(size);
    if (uncompress(asZlib(m_inflated), &made, asZlib(stream), static_cast<uLong>(stream.size())) !=
            Z_OK ||
        made != size) {
        throw std::runtime_error("zlib doesn't inflate");
    }
    return std::string_view(m_inflated).substr(0, size);
}

} // namespace zent::bench
