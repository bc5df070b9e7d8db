#pragma once

#include <memory>

namespace zent::platform {

/// A recursive lock (Windows: CRITICAL_SECTION; elsewhere a recursive pthread mutex).
/// Never fails once constructed.
class Lock {
public:
    Lock();
    ~Lock();
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    void enter() noexcept;
    void leave() noexcept;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

/// Holds a lock for a scope.
class LockHold {
public:
    explicit LockHold(Lock& lock) noexcept : m_lock(lock) { m_lock.enter(); }
    ~LockHold() { m_lock.leave(); }
    LockHold(const LockHold&) = delete;
    LockHold& operator=(const LockHold&) = delete;

private:
    Lock& m_lock;
};

} // namespace zent::platform
