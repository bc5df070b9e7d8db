#include "ZENT_API/CachedOutput.h"

#include <cstring>

namespace zent {

void CachedOutput::clear() {
    m_buffer.clear();
    m_key.reset();
}

ZentResult CachedOutput::handOut(void* target, std::uint32_t& size) {
    const ZentResult result = handOutBytes(m_buffer, target, size);
    if (result == ZENT_OK && target != nullptr) {
        clear();
    }
    return result;
}

ZentResult handOutBytes(const ByteBuffer& bytes, void* target, std::uint32_t& size) {
    const std::uint32_t given = size;
    size = static_cast<std::uint32_t>(bytes.size());
    if (target == nullptr) {
        return ZENT_OK;
    }
    if (given < bytes.size()) {
        return ZENT_ERR_BUFFER_TOO_SMALL;
    }
    if (!bytes.isEmpty()) {
        std::memcpy(target, bytes.data(), bytes.size());
    }
    return ZENT_OK;
}

} // namespace zent
