#include "ocore/OrdoParse/ParserMemory.h"

#include <limits>
#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace zent {

/// Stands before what is handed out, and links all that is out.
struct alignas(std::max_align_t) ParserMemory::Block {
    Block* older;
    Block* newer;
};

ParserMemory::~ParserMemory() {
    while (m_newest != nullptr) {
        deallocate(m_newest + 1);
    }
}

void* ParserMemory::allocate(XMLSize_t size) {
    void* const memory = size <= std::numeric_limits<XMLSize_t>::max() - sizeof(Block)
                             ? ::operator new(sizeof(Block) + size, std::nothrow)
                             : nullptr;
    if (memory == nullptr) {
        throw xercesc::OutOfMemoryException();
    }
    auto* const block = new (memory) Block{m_newest, nullptr};
    if (m_newest != nullptr) {
        m_newest->newer = block;
    }
    m_newest = block;
    return block + 1;
}

void ParserMemory::deallocate(void* memory) {
    if (memory == nullptr) {
        return;
    }
    Block* const block = static_cast<Block*>(memory) - 1;
    (block->newer != nullptr ? block->newer->older : m_newest) = block->older;
    if (block->older != nullptr) {
        block->older->newer = block->newer;
    }
    ::operator delete(block);
}

xercesc::MemoryManager* ParserMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

} // namespace zent
