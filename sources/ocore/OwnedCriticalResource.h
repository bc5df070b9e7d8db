#pragma once

#include "ocore/CriticalResource.h"
#include "ocore/TarvoException.h"

namespace zent {

/// Holds a critical resource for a scope, and is itself the entry of the record of who holds what:
/// it links into the process-wide list, so that recording allocates nothing.
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
    CriticalResource& m_resource;
    SourcePlace m_place;
};

} // namespace zent
