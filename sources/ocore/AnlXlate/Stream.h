#pragma once

#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// A sink of bytes.
class Stream {
public:
    virtual ~Stream() = default;
    virtual void write(const ByteBuffer& bytes) = 0;

protected:
    Stream() = default;
    Stream(const Stream&) = default;
    Stream& operator=(const Stream&) = default;
};

} // namespace zent
