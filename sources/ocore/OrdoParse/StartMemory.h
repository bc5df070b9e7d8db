#pragma once

#include <cstddef>
#include <memory>

#include <xercesc/framework/MemoryManager.hpp>

namespace zent {

/// The memory that the parser library starts with, and what it takes later outside of documents. It
/// counts a start that fails halfway as done, and can't take it back. So what the start needs is
/// reserved beforehand.
///
/// All memory is zeroed: where an allocation fails, the library gives back arrays of pointers that
/// it hasn't filled yet.
class StartMemory final : public xercesc::MemoryManager {
public:
    /// Raises std::bad_alloc, after which nothing has been started.
    StartMemory();
    ~StartMemory() override;
    StartMemory(const StartMemory&) = delete;
    StartMemory& operator=(const StartMemory&) = delete;

    /// The start is over: from now on threads may allocate at the same time, all from the heap.
    void endStart() noexcept { m_isStarting = false; }
    /// How much of the reserve the start has left over.
    std::size_t getRest() const noexcept { return size - m_used; }

    void* allocate(XMLSize_t bytes) override;
    void deallocate(void* memory) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }

private:
    static constexpr std::size_t size = std::size_t{1024} * 1024;

    bool isReserved(const void* memory) const noexcept;

    std::unique_ptr<std::byte[]> m_reserve;
    std::size_t m_used = 0;
    bool m_isStarting = true;
};

} // namespace zent
