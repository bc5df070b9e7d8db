#include "ocore/OrdoParse/ParserMemory.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <memory>
#include <new>
#include <utility>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace zent {

/// Stands before what is handed out.
struct ParserMemory::Head {
    alignas(alignment) std::size_t sizeClass; // 0 for a large block
    Head* next;                               // of those to be used again
};

/// Stands before the head of a large block, and links all that are out.
struct ParserMemory::Large {
    alignas(alignment) Large* older;
    Large* newer;
    std::size_t bytes;
};

namespace {

// What waits for the next document. Whoever uses it has taken it away.
std::atomic<std::byte*> keptPiece{nullptr};
std::atomic<void*> keptSpare{nullptr};

std::unique_ptr<std::byte[]> takePiece(std::size_t size) {
    std::unique_ptr<std::byte[]> piece(keptPiece.exchange(nullptr));
    return piece != nullptr ? std::move(piece) : std::make_unique_for_overwrite<std::byte[]>(size);
}

} // namespace

ParserMemory::ParserMemory(std::size_t bytes, std::size_t blocks)
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): what is released below is kept
    : m_mostBytes(bytes), m_mostBlocks(blocks), m_firstPiece(takePiece(firstPiece)),
      m_pieces(m_firstPiece.get(), firstPiece, std::pmr::new_delete_resource()),
      m_spare(static_cast<Large*>(keptSpare.exchange(nullptr))) {}

ParserMemory::~ParserMemory() {
    delete[] keptPiece.exchange(m_firstPiece.release());
    ::operator delete(keptSpare.exchange(m_spare));
    for (Large* block = m_newest; block != nullptr;) {
        Large* const older = block->older;
        ::operator delete(block);
        block = older;
    }
}

void* ParserMemory::allocate(XMLSize_t size) {
    if (size > m_mostBytes - m_bytes || ++m_blocks > m_mostBlocks) {
        m_mostBytes = m_mostBlocks = unbounded; // for the parser to clear up
        throw Refusal();
    }
    try {
        const std::size_t sizeClass = size / step + 1;
        return (sizeClass < sizeClasses ? allocateSmall(sizeClass) : allocateLarge(size)) + 1;
    } catch (const std::bad_alloc&) {
        throw xercesc::OutOfMemoryException();
    }
}

void ParserMemory::deallocate(void* memory) {
    if (memory == nullptr) {
        return;
    }
    Head* const head = static_cast<Head*>(memory) - 1;
    if (head->sizeClass == 0) {
        void* const block = head;
        deallocateLarge(static_cast<Large*>(block) - 1);
        return;
    }
    head->next = m_free[head->sizeClass];
    m_free[head->sizeClass] = head;
}

ParserMemory::Head* ParserMemory::allocateSmall(std::size_t sizeClass) {
    Head*& used = m_free[sizeClass];
    if (used != nullptr) {
        Head* const head = used;
        used = head->next;
        return head;
    }
    const std::size_t bytes = sizeof(Head) + sizeClass * step;
    void* const memory = m_pieces.allocate(bytes, alignof(Head));
    m_bytes += std::min(bytes, m_mostBytes - m_bytes);
    return new (memory) Head{sizeClass, nullptr};
}

ParserMemory::Head* ParserMemory::allocateLarge(std::size_t size) {
    constexpr std::size_t heads = sizeof(Large) + sizeof(Head);
    if (size > std::numeric_limits<std::size_t>::max() - heads) {
        throw std::bad_alloc();
    }
    const bool isSpare = m_spare != nullptr && m_spare->bytes == size;
    void* const memory = isSpare ? std::exchange(m_spare, nullptr) : ::operator new(heads + size);
    auto* const block = new (memory) Large{m_newest, nullptr, size};
    m_bytes += size;
    if (m_newest != nullptr) {
        m_newest->newer = block;
    }
    m_newest = block;
    return new (block + 1) Head{0, nullptr};
}

void ParserMemory::deallocateLarge(Large* block) {
    m_bytes -= block->bytes;
    (block->newer != nullptr ? block->newer->older : m_newest) = block->older;
    if (block->older != nullptr) {
        block->older->newer = block->newer;
    }
    if (block->bytes <= largestSpare) {
        std::swap(block, m_spare);
    }
    ::operator delete(block);
}

xercesc::MemoryManager* ParserMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

} // namespace zent
