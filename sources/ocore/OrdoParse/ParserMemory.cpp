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

/// The head of a block, before the bytes that are handed out.
struct ParserMemory::Head {
    alignas(alignment) std::size_t sizeClass; // 0 for a large block
    Head* next;                               // the next of the free blocks
};

/// Comes before the head of a large block, and links all that are in use.
struct ParserMemory::Large {
    alignas(alignment) Large* older;
    Large* newer;
    std::size_t bytes;
};

/// What one parse leaves to the next.
struct ParserMemory::Kept {
    ~Kept() {
        for (Large* spare : spares) {
            ::operator delete(spare);
        }
    }

    alignas(alignment) std::array<std::byte, firstPiece> piece;
    std::array<Large*, mostSpares> spares{};
};

// The memory that waits for the next document. Who uses it takes it out of here, so that no two do.
std::atomic<ParserMemory::Kept*> ParserMemory::waiting{nullptr};

std::unique_ptr<ParserMemory::Kept> ParserMemory::takeKept() {
    std::unique_ptr<Kept> kept(waiting.exchange(nullptr));
    return kept != nullptr ? std::move(kept) : std::unique_ptr<Kept>(new Kept);
}

ParserMemory::ParserMemory(std::size_t bytes, std::size_t blocks)
    : m_mostBytes(bytes), m_mostBlocks(blocks), m_kept(takeKept()),
      m_pieces(m_kept->piece.data(), firstPiece, std::pmr::new_delete_resource()) {}

ParserMemory::~ParserMemory() {
    for (Large* block = m_newest; block != nullptr;) {
        Large* const older = block->older;
        ::operator delete(block);
        block = older;
    }
    delete waiting.exchange(m_kept.release());
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
    const auto fits = [size](const Large* spare) {
        return spare != nullptr && spare->bytes == size;
    };
    const auto spare = std::find_if(m_kept->spares.begin(), m_kept->spares.end(), fits);
    void* const memory = spare != m_kept->spares.end() ? std::exchange(*spare, nullptr)
                                                       : ::operator new(heads + size);
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
        std::swap(block, m_kept->spares[m_nextSpare++ % mostSpares]);
    }
    ::operator delete(block);
}

xercesc::MemoryManager* ParserMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

} // namespace zent
