#pragma once

#include <cstdint>

namespace zent::test {

/// Lets an allocation of this thread fail: the one after so many others. What comes after that
/// succeeds again, as it does for a program that had one moment without memory.
class AllocationFailure {
public:
    explicit AllocationFailure(std::uint32_t allocationsBefore);
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    /// Whether it has come to it.
    bool hasHappened() const;
};

} // namespace zent::test
