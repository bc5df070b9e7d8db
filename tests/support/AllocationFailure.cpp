#include "support/AllocationFailure.h"

#include <cstdlib>
#include <new>

namespace zent::test {

namespace {

constexpr std::int64_t never = -1;
thread_local std::int64_t allocationsLeft = never;

void* allocate(std::size_t size) noexcept {
    if (allocationsLeft != never && allocationsLeft-- == 0) {
        return nullptr; // from here on no allocation fails
    }
    return std::malloc(size != 0 ? size : 1);
}

void* allocateOrThrow(std::size_t size) {
    void* const memory = allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

AllocationFailure::AllocationFailure(std::uint32_t allocationsBefore) {
    allocationsLeft = allocationsBefore;
}

AllocationFailure::~AllocationFailure() { allocationsLeft = never; }

bool AllocationFailure::hasHappened() const { return allocationsLeft == never; }

} // namespace zent::test

// The library's allocations and the tests' own come here, on every system.
void* operator new(std::size_t size) { return zent::test::allocateOrThrow(size); }
void* operator new[](std::size_t size) { return zent::test::allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return zent::test::allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return zent::test::allocate(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
