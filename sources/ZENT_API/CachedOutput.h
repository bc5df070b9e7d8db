#pragma once

#include <optional>

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"
#include "zent27.h"

namespace zent {

/// The last result of a generating call that hasn't been fetched yet: bytes, and a key that says
/// what they are. A cleared cache is for no key at all.
class CachedOutput {
public:
    ByteBuffer& buffer() { return m_buffer; }

    void setKey(const CXString& key) { m_key = key; }
    /// The key of a number is its decimal text.
    void setKeyFromNumber(std::uint32_t number) { m_key = keyOf(number); }
    bool isFor(const CXString& key) const { return m_key == key; }
    bool isFor(std::uint32_t number) const { return isFor(keyOf(number)); }
    void clear();

    /// The buffer protocol in bytes. A copy that succeeds clears the cache; a query for the size,
    /// or a buffer that is too small, keeps it for the next call.
    ZentResult handOut(void* target, std::uint32_t& size);

private:
    static CXString keyOf(std::uint32_t number) {
        return CXString::Format(u"%ld", static_cast<std::int32_t>(number));
    }

    ByteBuffer m_buffer;
    std::optional<CXString> m_key;
};

/// The buffer protocol in bytes, for any bytes.
ZentResult handOutBytes(const ByteBuffer& bytes, void* target, std::uint32_t& size);

} // namespace zent
