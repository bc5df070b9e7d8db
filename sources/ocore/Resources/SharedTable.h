#pragma once

#include <atomic>
#include <memory>

#include "ocore/Faults/OwnedCriticalResource.h"

namespace zent {

/// A table that is built at its first need, once for all threads, and never changes after that. A
/// build that fails is tried again at the next need.
template <typename Table>
class SharedTable {
public:
    explicit SharedTable(const char16_t* name) : m_resource(name) {}

    /// The table; `build` makes it if nobody has yet.
    const Table& get(std::unique_ptr<const Table> (*build)()) {
        if (const Table* const ready = m_ready.load(std::memory_order_acquire)) {
            return *ready;
        }
        const OwnedCriticalResource hold(m_resource);
        if (m_owned == nullptr) {
            m_owned = build();
            m_ready.store(m_owned.get(), std::memory_order_release);
        }
        return *m_owned;
    }

    /// The table, for those who know that it stands.
    const Table& operator*() const { return *m_ready.load(std::memory_order_acquire); }

private:
    CriticalResource m_resource;
    std::unique_ptr<const Table> m_owned;
    // What lookups go through: set once the table stands complete, so that they need no lock.
    std::atomic<const Table*> m_ready{nullptr};
};

} // namespace zent
