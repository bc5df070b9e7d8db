#pragma once

#include <cstddef>
#include <cstdint>

#include "ocore/Faults/CriticalResource.h"
#include "ocore/Faults/TarvoException.h"

namespace zent {

/// Holds a critical resource for a scope, and is itself the entry of the record of who holds what:
/// it links into the one list of all holds, so that recording allocates nothing. The list is in
/// order of taking; the holds of one thread are those with its id.
class OwnedCriticalResource {
public:
    explicit OwnedCriticalResource(CriticalResource& resource,
                                   SourcePlace place = SourcePlace::here());
    ~OwnedCriticalResource();
    OwnedCriticalResource(const OwnedCriticalResource&) = delete;
    OwnedCriticalResource& operator=(const OwnedCriticalResource&) = delete;

    /// How many holds are on record, of all threads: for diagnosis and tests.
    static std::size_t getRecordedCount();

private:
    struct Record;
    static Record& record();

    void link(Record& holds) noexcept;
    void unlink(Record& holds) noexcept;

    CriticalResource& m_resource;
    SourcePlace m_place;
    std::uint32_t m_threadId;
    OwnedCriticalResource* m_older = nullptr;
    OwnedCriticalResource* m_newer = nullptr;
};

} // namespace zent
