#pragma once

#include "ocore/Text/CXString.h"
#include "platform/Lock.h"

namespace zent {

/// A named lock that guards static state. Always a static object; a thread may enter it again
/// while it holds it.
class CriticalResource {
public:
    explicit CriticalResource(const char16_t* name) : m_name(name) {}
    CriticalResource(const CriticalResource&) = delete;
    CriticalResource& operator=(const CriticalResource&) = delete;

    void enter() { m_lock.enter(); }
    void leave() { m_lock.leave(); }
    const CXString& getName() const { return m_name; }

private:
    platform::Lock m_lock;
    CXString m_name;
};

} // namespace zent
