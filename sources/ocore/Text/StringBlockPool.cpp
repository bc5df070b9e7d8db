#include "ocore/Text/StringBlockPool.h"

#include <new>

namespace zent {

namespace {

constexpr std::size_t roundUp(std::size_t size) {
    return (size + alignof(void*) - 1) / alignof(void*) * alignof(void*);
}

} // namespace

StringBlockPool::StringBlockPool(std::size_t blockSize) : m_blockSize(roundUp(blockSize)) {}

StringBlockPool::~StringBlockPool() {
    while (m_chunks) {
        Chunk* const next = m_chunks->next;
        ::operator delete(m_chunks);
        m_chunks = next;
    }
}

void* StringBlockPool::take() {
    const platform::LockHold hold(m_lock);
    if (!m_free) {
        grow();
    }
    FreeBlock* const block = m_free;
    m_free = block->next;
    return block;
}

void StringBlockPool::giveBack(void* block) noexcept {
    const platform::LockHold hold(m_lock);
    m_free = new (block) FreeBlock{m_free};
}

void StringBlockPool::grow() {
    void* const memory = ::operator new(sizeof(Chunk) + m_blockSize * blocksPerChunk);
    m_chunks = new (memory) Chunk{m_chunks};
    // The blocks are linked from the last to the first, so that they are taken in the order of
    // memory.
    auto* const first = static_cast<std::byte*>(memory) + sizeof(Chunk);
    for (std::size_t i = blocksPerChunk; i-- > 0;) {
        m_free = new (first + i * m_blockSize) FreeBlock{m_free};
    }
}

} // namespace zent
