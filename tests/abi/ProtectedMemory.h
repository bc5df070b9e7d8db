#pragma once

#include <cstddef>

namespace zent::test {

/// Two pages of memory: one that can be read but not written, and behind it one that is not there.
class ProtectedMemory {
public:
    ProtectedMemory();
    ~ProtectedMemory();
    ProtectedMemory(const ProtectedMemory&) = delete;
    ProtectedMemory& operator=(const ProtectedMemory&) = delete;

    /// A handle of either kind that points into the one page or the other.
    template <typename Handle>
    Handle readOnly() const {
        return reinterpret_cast<Handle>(m_pages);
    }
    template <typename Handle>
    Handle unmapped() const {
        return reinterpret_cast<Handle>(m_pages + m_pageSize);
    }

private:
    std::size_t m_pageSize;
    char* m_pages;
};

} // namespace zent::test
