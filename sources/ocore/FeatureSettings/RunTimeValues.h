#pragma once

#include <cstdint>
#include <utility>

#include "ocore/Faults/CriticalResource.h"
#include "ocore/FeatureSettings/FeatureValueInfo.h"

namespace zent {

/// A row of the value table, or none. A fixed row lives for as long as the library; a row of the
/// run time is kept for as long as a reference to it lives.
class FeatureValueReference {
public:
    FeatureValueReference() = default;
    /// Refers to a fixed row.
    explicit FeatureValueReference(const FeatureValueInfo& fixed) : m_info(&fixed) {}
    FeatureValueReference(const FeatureValueReference& other) noexcept : m_info(other.m_info) {
        if (isCounted()) {
            countUp();
        }
    }
    FeatureValueReference(FeatureValueReference&& other) noexcept
        : m_info(std::exchange(other.m_info, nullptr)) {}
    FeatureValueReference& operator=(FeatureValueReference other) noexcept {
        std::swap(m_info, other.m_info);
        return *this;
    }
    ~FeatureValueReference() {
        if (isCounted()) {
            countDown();
        }
    }

    explicit operator bool() const { return m_info != nullptr; }
    const FeatureValueInfo& operator*() const { return *m_info; }
    const FeatureValueInfo* operator->() const { return m_info; }

private:
    friend class RunTimeValues;
    bool isCounted() const {
        return m_info != nullptr && m_info->m_value >= value::firstRunTimeValue;
    }
    void countUp() const noexcept;
    void countDown() const noexcept;

    const FeatureValueInfo* m_info = nullptr;
};

/// The values that tickets and users bring along. They are the same for all sessions, and stay
/// while anything holds a reference. Of those that nothing holds the most recently used are
/// remembered, since a name that came once tends to come again; the others are forgotten.
///
/// All functions take the lock, which is recursive: a caller that must look up and add in one go
/// holds it around both.
class RunTimeValues {
public:
    static constexpr std::size_t mostRemembered = 16384;

    static CriticalResource& getCriticalResource();

    /// These give no row if there is none.
    static FeatureValueReference find(std::int32_t value);
    static FeatureValueReference find(FeatureEnum feature, const CXString& text);
    static FeatureValueReference add(const FeatureValueInfo& info);

private:
    friend class FeatureValueReference;
    struct Row;
    struct Store;
};

} // namespace zent
