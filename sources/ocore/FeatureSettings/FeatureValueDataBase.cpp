// The fixed rows never change after they are built, so that they are found without a lock. Only
// what isn't among them is looked up in the values of run time, under their lock.

#include "ocore/FeatureSettings/FeatureValueDataBase.h"

#include <map>
#include <vector>

#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

/// The fixed rows. The texts that the keys refer to are theirs.
struct ValueStore {
    using ByText = std::map<std::u16string_view, const FeatureValueInfo*>;

    std::vector<FeatureValueInfo> byNumber; // number 0 where there is no value
    std::vector<ByText> byText;             // for each feature its own, of a few values mostly
    ByText byAbbreviation;

    ValueStore() { byNumber.resize(value::firstRunTimeValue); }

    void add(FeatureValueInfo&& added) {
        FeatureValueInfo& row = byNumber[static_cast<std::size_t>(added.m_value)];
        row = std::move(added);
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
    std::int32_t value = value::firstMediaName;
    for (const MediaName& name : getMediaNames()) {
        store.add({value,
                   {feature::media, feature::mediaKey, feature::mediaDescription},
                   name.text,
                   std::u16string_view(getMediaNameAbbreviation(value)),
                   name.displayStringID,
                   0,
                   syntax::keyword,
                   AVTE_KEYWORD});
        ++value;
    }
}

ValueStore buildStore() {
    ValueStore built;
    for (const FeatureValueRow& row : getLowerValueRows()) {
        built.add(makeInfo(row));
    }
    addMediaNames(built);
    for (const FeatureValueRow& row : getUpperValueRows()) {
        built.add(makeInfo(row));
    }
    return built;
}

/// Built at its first need, once for all threads. A build that fails is tried again.
const ValueStore& store() {
    static const auto& built = keepForever<ValueStore>(buildStore());
    return built;
}

const FeatureValueInfo* findFixed(std::int32_t value) {
    const auto& rows = store().byNumber;
    const auto index = static_cast<std::uint32_t>(value);
    const bool isThere = index < rows.size() && rows[index].m_value != 0;
    return isThere ? &rows[index] : nullptr;
}

const FeatureValueInfo* findFixed(FeatureEnum feature, const CXString& text) {
    if (feature >= store().byText.size()) {
        return nullptr;
    }
    const ValueStore::ByText& values = store().byText[feature];
    const auto found = values.find(text.view());
    return found == values.end() ? nullptr : found->second;
}

const FeatureValueInfo* findByAbbreviation(const CXString& abbreviation) {
    const auto& rows = store().byAbbreviation;
    const auto found = rows.find(abbreviation.view());
    return found == rows.end() ? nullptr : found->second;
}

} // namespace

FeatureValueDataBase::FeatureValueDataBase() { store(); }

FeatureValueReference FeatureValueDataBase::getFeatureValueInfo(std::int32_t value) const {
    FeatureValueReference info = findFeatureValueInfo(value);
    if (!info) {
        raiseUnknownValue(value);
    }
    return info;
}

void FeatureValueDataBase::raiseUnknownValue(std::int32_t value) {
    Raise<UnknownFeatureRequestException>()(
        "FeatureValueDataBase::getFeatureValueInfo( ValueEnum ) could not find requested "
        "ValueEnum %ld\r\n",
        value);
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

FeatureValueReference FeatureValueDataBase::getFeatureValueInfo(FeatureEnum feature,
                                                                const CXString& text) const {
    FeatureValueReference info = findFeatureValueInfo(feature, text);
    if (!info) {
        raiseUnknownValue(feature, text);
    }
    return info;
}

FeatureValueReference FeatureValueDataBase::findFeatureValueInfo(std::int32_t value) const {
    if (value >= value::firstRunTimeValue) {
        return RunTimeValues::find(value);
    }
    const FeatureValueInfo* const fixed = findFixed(value);
    return fixed == nullptr ? FeatureValueReference() : FeatureValueReference(*fixed);
}

FeatureValueReference FeatureValueDataBase::findFeatureValueInfo(FeatureEnum feature,
                                                                 const CXString& text) const {
    const FeatureValueInfo* const fixed = findFixed(feature, text);
    return fixed == nullptr ? RunTimeValues::find(feature, text) : FeatureValueReference(*fixed);
}

const FeatureValueInfo*
FeatureValueDataBase::findFeatureValueInfoByAbbreviation(const CXString& abbreviation) const {
    return findByAbbreviation(abbreviation);
}

bool FeatureValueDataBase::hasValue(std::int32_t value) const {
    return static_cast<bool>(findFeatureValueInfo(value));
}

bool FeatureValueDataBase::hasFeatureValue(FeatureEnum feature, const CXString& text) const {
    return static_cast<bool>(findFeatureValueInfo(feature, text));
}

bool FeatureValueDataBase::hasAbbreviation(const CXString& abbreviation) const {
    return findByAbbreviation(abbreviation) != nullptr;
}

FeatureValueReference FeatureValueDataBase::addValue(const FeatureValueInfo& info) {
    return RunTimeValues::add(info);
}

} // namespace zent
