#include "ocore/FeatureSettings/FeatureDataBase.h"

#include <map>

#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureTable.h"
#include "ocore/FeatureSettings/NestedIDText.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

/// The rows by number, and the two ways to a number by text.
struct FeatureStore {
    std::vector<FeatureInfo> byNumber; // the first is number 2, and there is no gap
    std::map<std::u16string_view, FeatureEnum> byUniqueID;
    std::map<std::u16string_view, FeatureEnum> byAbbreviation;
};

FeatureInfo makeInfo(const FeatureRow& row) {
    FeatureInfo info{row.feature,
                     makeNestedAttrID(row.leaf, row.parents, NestedAttrID::namingParent),
                     row.abbreviation,
                     {},
                     row.displayStringID,
                     row.supportClass,
                     SyntaxList(row.syntaxes),
                     row.unit};
    for (const FeatureEnum related : row.related) {
        if (related != feature::none) {
            info.m_related.push_back(related);
        }
    }
    return info;
}

FeatureStore buildStore() {
    FeatureStore store;
    for (const FeatureRow& row : getFeatureRows()) {
        store.byNumber.push_back(makeInfo(row));
    }
    for (const FeatureInfo& info : store.byNumber) {
        store.byUniqueID.emplace(info.m_nestedID.getName().view(), info.m_feature);
        store.byAbbreviation.emplace(info.m_abbreviation.view(), info.m_feature);
    }
    return store;
}

/// Built at its first need, once for all threads. A build that fails is tried again.
const FeatureStore& store() {
    static const auto& built = keepForever<FeatureStore>(buildStore());
    return built;
}

using NumberByText = std::map<std::u16string_view, FeatureEnum>;

const FeatureInfo* findByText(const NumberByText& map, const CXString& text) {
    const auto found = map.find(text.view());
    return found == map.end() ? nullptr : &store().byNumber[found->second - feature::first];
}

} // namespace

FeatureDataBase::FeatureDataBase() { store(); }

bool FeatureDataBase::hasFeature(FeatureEnum feature) const {
    return feature >= feature::first && feature <= feature::last;
}

const FeatureInfo* FeatureDataBase::findFeatureInfo(const CXString& uniqueID) const {
    return findByText(store().byUniqueID, uniqueID);
}

const FeatureInfo*
FeatureDataBase::findFeatureInfoByAbbreviation(const CXString& abbreviation) const {
    return findByText(store().byAbbreviation, abbreviation);
}

bool FeatureDataBase::hasUniqueID(const CXString& uniqueID) const {
    return findFeatureInfo(uniqueID) != nullptr;
}

const FeatureInfo& FeatureDataBase::getFeatureInfo(FeatureEnum feature) const {
    if (!hasFeature(feature)) {
        Raise<UnknownFeatureRequestException>()("FeatureDataBase::getFeatureInfo( FeatureEnum ) "
                                                "could not find requested FeatureEnum %ld\r\n",
                                                feature);
    }
    return store().byNumber[feature - feature::first];
}

const FeatureInfo& FeatureDataBase::getFeatureInfo(const CXString& uniqueID) const {
    const AttrID id(uniqueID); // empty text fails as an attribute name
    const FeatureInfo* const info = findFeatureInfo(id.getText());
    if (info == nullptr) {
        Raise<UnknownFeatureRequestException>()(
            "FeatureDataBase::getFeatureInfo( UniqueID ) could not find requested ID '%s'\r\n",
            uniqueID);
    }
    return *info;
}

} // namespace zent
