#pragma once

#include <string_view>

#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// A sink of bytes.
class Stream {
public:
    virtual ~Stream() = default;
    /// True if the bytes were taken; anything else ends the writing.
    virtual bool write(std::string_view bytes) = 0;

protected:
    Stream() = default;
    Stream(const Stream&) = default;
    Stream& operator=(const Stream&) = default;
};

/// Appends what is written to a buffer, after whatever that already holds. The buffer is the
/// caller's and has to live as long.
class BufferStream final : public Stream {
public:
    explicit BufferStream(ByteBuffer* target) : m_target(target) {}

    bool write(std::string_view bytes) override {
        m_target->append(bytes.data(), bytes.size());
        return true;
    }

private:
    ByteBuffer* m_target;
};

} // namespace zent
