#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <memory_resource>

#include <xercesc/framework/MemoryManager.hpp>

namespace zent {

/// The memory of one run of the parser or the formatter. What isn't given back goes with this
/// object: a parser that is stopped half-way loses track of some of it, and Debian's guard against
/// CVE-2018-1311 is that one declaration is never freed in each document type that is read.
///
/// A parser asks for some hundreds of small blocks before it has read anything, which is a third of
/// the time that a short ticket takes. So these are cut from one piece and used again by size; the
/// heap serves large ones alone. The last few of those to come back wait for others of their size:
/// a parser takes one for each entity that it reads, nested as the entities are, and for hundreds
/// of them in a document type. They and the first piece wait for the next document, too, since
/// heaps give so much memory back to the system, and get it anew page by page.
///
/// It also bounds what a hostile document makes the parser keep before any event tells of it, such
/// as the attributes of a tag that doesn't end.
class ParserMemory final : public xercesc::MemoryManager {
public:
    /// Raised where memory is asked for beyond a bound.
    struct Refusal {};

    static constexpr std::size_t unbounded = std::numeric_limits<std::size_t>::max();

    /// `bytes` is how much may be in use at a time, `blocks` how many blocks may be asked for
    /// between two events.
    explicit ParserMemory(std::size_t bytes = unbounded, std::size_t blocks = unbounded);
    ~ParserMemory() override;
    ParserMemory(const ParserMemory&) = delete;
    ParserMemory& operator=(const ParserMemory&) = delete;

    /// An event of the parser: the count of blocks begins again.
    void noteEvent() { m_blocks = 0; }

    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;
    /// The memory for exceptions, which may outlive this object.
    xercesc::MemoryManager* getExceptionMemoryManager() override;

private:
    struct Head;
    struct Large;
    struct Kept;

    /// The alignment that heaps give. It isn't that of std::max_align_t, which with MinGW for x86
    /// depends on the order of the headers, so that this class would differ from source to source.
    static constexpr std::size_t alignment = 2 * sizeof(void*);
    static constexpr std::size_t step = 64;        // the sizes of small blocks, in bytes
    static constexpr std::size_t sizeClasses = 65; // of up to 4 KiB; class 0 stays empty
    static constexpr std::size_t firstPiece = std::size_t{96} * 1024;
    static constexpr std::size_t largestSpare = std::size_t{256} * 1024;

    static constexpr std::size_t mostSpares = 4;

    static std::atomic<Kept*> waiting;
    static std::unique_ptr<Kept> takeKept();

    Head* allocateSmall(std::size_t sizeClass);
    Head* allocateLarge(std::size_t size);
    void deallocateLarge(Large* block);

    std::size_t m_mostBytes;
    std::size_t m_mostBlocks;
    std::size_t m_bytes = 0;
    std::size_t m_blocks = 0;
    std::unique_ptr<Kept> m_kept;
    std::pmr::monotonic_buffer_resource m_pieces;
    std::array<Head*, sizeClasses> m_free{}; // blocks to be used again
    Large* m_newest = nullptr;
    std::size_t m_nextSpare = 0; // the place where the next one waits
};

} // namespace zent
