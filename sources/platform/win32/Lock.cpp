#include "platform/Lock.h"

#include <windows.h>

namespace zent::platform {

struct Lock::Native {
    CRITICAL_SECTION section;

    Native() { InitializeCriticalSection(&section); }
    ~Native() { DeleteCriticalSection(&section); }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;
};

Lock::Lock() : m_native(std::make_unique<Native>()) {}

Lock::~Lock() = default;

void Lock::enter() noexcept { EnterCriticalSection(&m_native->section); }

void Lock::leave() noexcept { LeaveCriticalSection(&m_native->section); }

} // namespace zent::platform
