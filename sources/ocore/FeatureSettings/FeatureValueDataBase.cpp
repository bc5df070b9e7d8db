#include "ocore/FeatureSettings/FeatureValueDataBase.h"

#include <map>
#include <memory>
#include <vector>

#include "ocore/Exceptions.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "ocore/OwnedCriticalResource.h"

namespace zent {

namespace {

/// The texts that the keys refer to belong to the rows, which never move.
struct ValueStore {
    using ByText = std::map<std::u16string_view, const FeatureValueInfo*>;

    std::map<std::int32_t, FeatureValueInfo> byNumber;
    std::vector<ByText> byText; // for each feature its own, of a few values mostly
    ByText byAbbreviation;

    void add(const FeatureValueInfo& added) {
        const FeatureValueInfo& row = byNumber.emplace(added.m_value, added).first->second;
        for (const FeatureEnum feature : row.m_features) {
            if (feature >= byText.size()) {
                byText.resize(feature + 1);
            }
            byText[feature].emplace(row.m_text.view(), &row);
        }
        if (!row.m_abbreviation.isEmpty()) {
            byAbbreviation.emplace(row.m_abbreviation.view(), &row);
        }
    }
};

FeatureValueInfo makeInfo(const FeatureValueRow& row) {
    FeatureValueInfo info{row.value,           {},          row.text,   row.abbreviation,
                          row.displayStringID, row.imageID, row.syntax, AVTE_NULL};
    for (const FeatureEnum feature : row.features) {
        if (feature != 0) {
            info.m_features.push_back(feature);
        }
    }
    info.m_type = syntaxToAVTE(info.m_syntax);
    return info;
}

void addMediaNames(ValueStore& store) {
    constexpr FeatureEnum media = 97;
    constexpr FeatureEnum mediaKey = 98;
    constexpr FeatureEnum mediaDescription = 104;
    std::int32_t value = firstMediaName;
    for (const char16_t* const name : getMediaNames()) {
        store.add({value,
                   {media, mediaKey, mediaDescription},
                   name,
                   std::u16string_view(getMediaNameAbbreviation(value)),
                   getMediaNameDisplayStringID(value),
                   0,
                   syntax::keyword,
                   AVTE_KEYWORD});
        ++value;
    }
}

std::unique_ptr<ValueStore> buildStore() {
    auto built = std::make_unique<ValueStore>();
    for (const FeatureValueRow& row : getLowerValueRows()) {
        built->add(makeInfo(row));
    }
    addMediaNames(*built);
    for (const FeatureValueRow& row : getUpperValueRows()) {
        built->add(makeInfo(row));
    }
    return built;
}

CriticalResource criticalResource(u"FeatureValueDataBase");

/// The store, for as long as the lock is held; the first to come builds it.
class LockedStore {
public:
    LockedStore() : m_hold(criticalResource) {
        if (stored == nullptr) {
            stored = buildStore();
        }
    }
    ValueStore* operator->() const { return stored.get(); }

private:
    static inline std::unique_ptr<ValueStore> stored;
    OwnedCriticalResource m_hold;
};

const FeatureValueInfo* findByNumber(std::int32_t value) {
    const LockedStore store;
    const auto found = store->byNumber.find(value);
    return found == store->byNumber.end() ? nullptr : &found->second;
}

const FeatureValueInfo* findByText(FeatureEnum feature, const CXString& text) {
    const LockedStore store;
    if (feature >= store->byText.size()) {
        return nullptr;
    }
    const ValueStore::ByText& values = store->byText[feature];
    const auto found = values.find(text.view());
    return found == values.end() ? nullptr : found->second;
}

const FeatureValueInfo* findByAbbreviation(const CXString& abbreviation) {
    const LockedStore store;
    const auto found = store->byAbbreviation.find(abbreviation.view());
    return found == store->byAbbreviation.end() ? nullptr : found->second;
}

} // namespace

const FeatureValueInfo& FeatureValueDataBase::getFeatureValueInfo(std::int32_t value) const {
    const FeatureValueInfo* const info = findByNumber(value);
    if (info == nullptr) {
        Raise<UnknownFeatureRequestException>()(
            "FeatureValueDataBase::getFeatureValueInfo( ValueEnum ) could not find requested "
            "ValueEnum %ld\r\n",
            value);
    }
    return *info;
}

void FeatureValueDataBase::raiseUnknownValue(FeatureEnum feature, const CXString& text) {
    const FeatureDataBase features;
    const CXString name = features.hasFeature(feature)
                              ? features.getFeatureInfo(feature).m_nestedID.getName()
                              : CXString(u"<unknown>!");
    Raise<UnknownFeatureRequestException>()(
        "FeatureValueDataBase::getFeatureValueInfo( Feature, Value ) could not find requested "
        "value '%s' for feature '%d' (%s).\r\n",
        text, feature, name);
}

const FeatureValueInfo& FeatureValueDataBase::getFeatureValueInfo(FeatureEnum feature,
                                                                  const CXString& text) const {
    const FeatureValueInfo* const info = findByText(feature, text);
    if (info == nullptr) {
        raiseUnknownValue(feature, text);
    }
    return *info;
}

const FeatureValueInfo&
FeatureValueDataBase::getFeatureValueInfoByAbbreviation(const CXString& abbreviation) const {
    const FeatureValueInfo* const info = findByAbbreviation(abbreviation);
    if (info == nullptr) {
        Raise<UnknownFeatureRequestException>()(
            "FeatureValueDataBase::getFeatureValueInfoByAbbreviation() could not find requested "
            "value for abbreviation '%s'.\r\n",
            abbreviation);
    }
    return *info;
}

const FeatureValueInfo* FeatureValueDataBase::findFeatureValueInfo(FeatureEnum feature,
                                                                   const CXString& text) const {
    return findByText(feature, text);
}

const FeatureValueInfo*
FeatureValueDataBase::findFeatureValueInfoByAbbreviation(const CXString& abbreviation) const {
    return findByAbbreviation(abbreviation);
}

bool FeatureValueDataBase::hasValue(std::int32_t value) const {
    return findByNumber(value) != nullptr;
}

bool FeatureValueDataBase::hasFeatureValue(FeatureEnum feature, const CXString& text) const {
    return findByText(feature, text) != nullptr;
}

bool FeatureValueDataBase::hasAbbreviation(const CXString& abbreviation) const {
    return findByAbbreviation(abbreviation) != nullptr;
}

CriticalResource& FeatureValueDataBase::getCriticalResource() { return criticalResource; }

void FeatureValueDataBase::addValue(const FeatureValueInfo& info) { LockedStore()->add(info); }

} // namespace zent
