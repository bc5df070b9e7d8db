#pragma once

#include <cstddef>

#include "platform/Lock.h"

namespace zent {

/// Memory blocks of one size. Grows by chunks, and gives none back before it is destroyed.
class StringBlockPool {
public:
    static constexpr std::size_t blocksPerChunk = 64;

    /// `blockSize` in bytes; rounded up so that every block can hold a pointer.
    explicit StringBlockPool(std::size_t blockSize);
    /// Frees all chunks, whether or not blocks of them are still in use.
    ~StringBlockPool();
    StringBlockPool(const StringBlockPool&) = delete;
    StringBlockPool& operator=(const StringBlockPool&) = delete;

    /// A block, aligned for pointers. Raises std::bad_alloc.
    void* take();
    void giveBack(void* block) noexcept;

private:
    struct FreeBlock {
        FreeBlock* next;
    };
    struct Chunk {
        Chunk* next;
    };
    void grow();

    const std::size_t m_blockSize;
    platform::Lock m_lock;
    FreeBlock* m_free = nullptr;
    Chunk* m_chunks = nullptr;
};

} // namespace zent
