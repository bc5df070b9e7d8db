#include "ocore/OrdoParse/StartMemory.h"

#include <cstring>
#include <functional>
#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>

namespace zent {

StartMemory::StartMemory() : m_reserve(std::make_unique<std::byte[]>(size)) {}

StartMemory::~StartMemory() = default;

void* StartMemory::allocate(XMLSize_t bytes) {
    constexpr std::size_t alignment = 2 * sizeof(void*);
    if (m_isStarting && bytes <= getRest() - alignment) {
        void* const memory = m_reserve.get() + m_used;
        m_used += (bytes + alignment - 1) / alignment * alignment;
        return memory;
    }
    try {
        return std::memset(::operator new(bytes), 0, bytes);
    } catch (const std::bad_alloc&) {
        throw xercesc::OutOfMemoryException();
    }
}

void StartMemory::deallocate(void* memory) {
    if (!isReserved(memory)) {
        ::operator delete(memory);
    }
}

bool StartMemory::isReserved(const void* memory) const noexcept {
    const std::less<const void*> isBefore;
    return !isBefore(memory, m_reserve.get()) && isBefore(memory, m_reserve.get() + size);
}

} // namespace zent
