#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace zent {

/// The head of a block that strings share. The units of a CXString's text, and one terminating zero
/// unit, follow it in memory.
struct StringBlock {
    /// False in builds that a sanitizer watches: there every block comes from the heap.
    static const bool usesPools;
    /// The most units of a block that comes from a pool; longer ones come from the heap.
    static constexpr std::size_t largestPooled = 512;
    /// The most units a block can hold, so that sizes in bytes fit 32 bits.
    static constexpr std::size_t maximumCapacity = 0x3FFF'FFF0;

    /// How many strings share the block; 0 in the empty block alone, which is never counted.
    std::atomic<std::int32_t> count;
    std::int32_t length;   // units, without the terminator
    std::int32_t capacity; // units, without the terminator

    char16_t* text() noexcept { return static_cast<char16_t*>(static_cast<void*>(this + 1)); }
    static StringBlock* of(char16_t* text) noexcept {
        return static_cast<StringBlock*>(static_cast<void*>(text)) - 1;
    }

    /// A block of at least `capacity` units with count 1, length 0 and a terminator; from a pool
    /// if a pool has blocks of that size, else from the heap. Raises std::bad_alloc.
    static StringBlock* allocate(std::size_t capacity);
    static void giveBack(StringBlock* block) noexcept;

    /// Sets the length, which must not exceed the capacity, and the terminator.
    void setLength(std::size_t units) noexcept {
        length = static_cast<std::int32_t>(units);
        text()[units] = u'\0';
    }
};

/// The block of every empty string.
struct EmptyStringBlock {
    StringBlock head{0, 0, 0};
    char16_t terminator = u'\0';
};
inline constinit EmptyStringBlock emptyStringBlock;

} // namespace zent
