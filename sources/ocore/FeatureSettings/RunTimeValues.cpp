// A value that a ticket brings along must have a number as long as any handle of it lives, and a
// host may read tickets for years. So values are counted by their handles; those that nothing holds
// are kept only up to a bound.

#include "ocore/FeatureSettings/RunTimeValues.h"

#include <atomic>
#include <list>
#include <map>
#include <string_view>

#include "ocore/Faults/OwnedCriticalResource.h"
#include "platform/KeepForever.h"

namespace zent {

struct RunTimeValues::Row : FeatureValueInfo {
    explicit Row(const FeatureValueInfo& info) : FeatureValueInfo(info) {}

    mutable std::atomic<std::uint32_t> references{0};
    std::list<Row>::iterator place; // in one of the lists of the store
};

/// Rows move between the two lists without being copied, and the texts of the keys are theirs.
struct RunTimeValues::Store {
    std::list<Row> held;
    std::list<Row> remembered; // least recently used first
    std::map<std::int32_t, Row*> byNumber;
    std::map<std::pair<FeatureEnum, std::u16string_view>, Row*> byText;

    static Store& get() {
        static auto& store = keepForever<Store>();
        return store;
    }

    FeatureValueReference refer(Row& row) {
        if (row.references.fetch_add(1) == 0) {
            held.splice(held.end(), remembered, row.place);
        }
        FeatureValueReference reference;
        reference.m_info = &row;
        return reference;
    }

    FeatureValueReference add(const FeatureValueInfo& info) {
        Row& row = remembered.emplace_back(info);
        row.place = std::prev(remembered.end());
        try {
            for (const FeatureEnum feature : row.m_features) {
                byText.emplace(std::pair(feature, row.m_text.view()), &row);
            }
            byNumber.emplace(row.m_value, &row);
        } catch (...) {
            forget(row);
            throw;
        }
        return refer(row);
    }

    void release(const Row& row) {
        if (row.references.fetch_sub(1) == 1) {
            remembered.splice(remembered.end(), held, row.place);
            if (remembered.size() > mostRemembered) {
                forget(remembered.front());
            }
        }
    }

    void forget(const Row& row) {
        for (const FeatureEnum feature : row.m_features) {
            byText.erase({feature, row.m_text.view()});
        }
        byNumber.erase(row.m_value);
        remembered.erase(row.place);
    }
};

CriticalResource& RunTimeValues::getCriticalResource() {
    static auto& resource = keepForever<CriticalResource>(u"FeatureValueDataBase");
    return resource;
}

FeatureValueReference RunTimeValues::find(std::int32_t value) {
    const OwnedCriticalResource hold(getCriticalResource());
    Store& store = Store::get();
    const auto found = store.byNumber.find(value);
    return found == store.byNumber.end() ? FeatureValueReference() : store.refer(*found->second);
}

FeatureValueReference RunTimeValues::find(FeatureEnum feature, const CXString& text) {
    const OwnedCriticalResource hold(getCriticalResource());
    Store& store = Store::get();
    const auto found = store.byText.find({feature, text.view()});
    return found == store.byText.end() ? FeatureValueReference() : store.refer(*found->second);
}

FeatureValueReference RunTimeValues::add(const FeatureValueInfo& info) {
    const OwnedCriticalResource hold(getCriticalResource());
    return Store::get().add(info);
}

void FeatureValueReference::countUp() const noexcept {
    static_cast<const RunTimeValues::Row&>(*m_info).references.fetch_add(1);
}

/// The last reference goes under the lock alone: a lookup may find the row until then.
void FeatureValueReference::countDown() const noexcept {
    const auto& row = static_cast<const RunTimeValues::Row&>(*m_info);
    std::uint32_t count = row.references.load();
    while (count > 1) {
        if (row.references.compare_exchange_weak(count, count - 1)) {
            return;
        }
    }
    const OwnedCriticalResource hold(RunTimeValues::getCriticalResource());
    RunTimeValues::Store::get().release(row);
}

} // namespace zent
