#pragma once

#include <cstdint>

namespace zent::test {

/// Lets one allocation of this thread fail, after so many others. Those after it succeed again, as
/// they do in a program that had one moment without memory.
class AllocationFailure {
public:
    explicit AllocationFailure(std::uint32_t allocationsBefore);
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    /// Whether the allocation has failed by now.
    bool hasHappened() const;
};

} // namespace zent::test
