// Most texts are short, and are made and dropped in great number. A pool for each of a few sizes
// serves those faster than the heap, which keeps the long ones.

#include "ocore/Text/StringBlock.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "ocore/Text/StringBlockPool.h"
#include "platform/KeepForever.h"

namespace zent {

// A sanitizer sees blocks that are used after their end, or lost, only if they come from the heap.
#if defined(__SANITIZE_ADDRESS__)
const bool StringBlock::usesPools = false;
#elif defined(__has_feature)
const bool StringBlock::usesPools = !__has_feature(address_sanitizer);
#else
const bool StringBlock::usesPools = true;
#endif

namespace {

constexpr std::array<std::size_t, 15> poolCapacities{6,  7,  8,  9,  10,  11,  12, 16,
                                                     20, 24, 32, 64, 128, 256, 512};
static_assert(poolCapacities.back() == StringBlock::largestPooled);

/// The index of the smallest class that holds a capacity, for every capacity up to the largest.
constexpr auto classOfCapacity = [] {
    std::array<std::uint8_t, StringBlock::largestPooled + 1> classes{};
    std::uint8_t index = 0;
    for (std::size_t capacity = 0; capacity <= StringBlock::largestPooled; ++capacity) {
        index = static_cast<std::uint8_t>(index + (capacity > poolCapacities[index] ? 1 : 0));
        classes[capacity] = index;
    }
    return classes;
}();

constexpr std::size_t bytesFor(std::size_t capacity) {
    return sizeof(StringBlock) + (capacity + 1) * sizeof(char16_t);
}

class Pools {
public:
    Pools() : Pools(std::make_index_sequence<poolCapacities.size()>()) {}
    StringBlockPool& operator[](std::size_t classIndex) { return m_pools[classIndex]; }

private:
    template <std::size_t... I>
    explicit Pools(std::index_sequence<I...> /*classes*/)
        : m_pools{StringBlockPool(bytesFor(poolCapacities[I]))...} {}

    std::array<StringBlockPool, poolCapacities.size()> m_pools;
};

StringBlockPool& poolOf(std::size_t classIndex) {
    static Pools& pools = keepForever<Pools>();
    return pools[classIndex];
}

} // namespace

StringBlock* StringBlock::allocate(std::size_t capacity) {
    if (capacity > maximumCapacity) {
        throw std::bad_alloc();
    }
    void* memory = nullptr;
    if (usesPools && capacity <= largestPooled) {
        const std::size_t classIndex = classOfCapacity[capacity];
        capacity = poolCapacities[classIndex];
        memory = poolOf(classIndex).take();
    } else {
        memory = ::operator new(bytesFor(capacity));
    }
    auto* const block = new (memory) StringBlock{1, 0, static_cast<std::int32_t>(capacity)};
    *block->text() = u'\0';
    return block;
}

void StringBlock::giveBack(StringBlock* block) noexcept {
    const auto capacity = static_cast<std::size_t>(block->capacity);
    if (usesPools && capacity <= largestPooled) {
        poolOf(classOfCapacity[capacity]).giveBack(block);
    } else {
        ::operator delete(block);
    }
}

} // namespace zent
