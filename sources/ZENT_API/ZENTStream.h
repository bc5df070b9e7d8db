#pragma once

#include "ocore/AnlXlate/Stream.h"

namespace zent {

/// Appends what is written to a buffer, behind whatever that already holds. The buffer is the
/// caller's and has to live as long.
class ZENTStream final : public Stream {
public:
    explicit ZENTStream(ByteBuffer* target) : m_target(target) {}

    void write(const ByteBuffer& bytes) override { m_target->append(bytes); }

private:
    ByteBuffer* m_target;
};

} // namespace zent
