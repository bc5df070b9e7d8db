#include "abi/ProtectedMemory.h"

#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace zent::test {

#ifdef _WIN32

ProtectedMemory::ProtectedMemory() {
    SYSTEM_INFO system{};
    GetSystemInfo(&system);
    m_pageSize = system.dwPageSize;
    m_pages = static_cast<char*>(VirtualAlloc(nullptr, 2 * m_pageSize, MEM_RESERVE, PAGE_NOACCESS));
    if (m_pages == nullptr ||
        VirtualAlloc(m_pages, m_pageSize, MEM_COMMIT, PAGE_READONLY) == nullptr) {
        throw std::runtime_error("no memory");
    }
}

ProtectedMemory::~ProtectedMemory() { VirtualFree(m_pages, 0, MEM_RELEASE); }

#else

ProtectedMemory::ProtectedMemory() : m_pageSize(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))) {
    void* const pages =
        mmap(nullptr, 2 * m_pageSize, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) {
        throw std::runtime_error("no memory");
    }
    m_pages = static_cast<char*>(pages);
    // Kept for nothing to use, as the heap would take a hole.
    mprotect(m_pages + m_pageSize, m_pageSize, PROT_NONE);
}

ProtectedMemory::~ProtectedMemory() { munmap(m_pages, 2 * m_pageSize); }

#endif

} // namespace zent::test
