#include "ocore/FeatureSettings/FeatureValue.h"

#include <algorithm>
#include <atomic>
#include <limits>

#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

namespace {

std::atomic<std::int32_t> nextRunTimeValue{value::firstRunTimeValue};

std::vector<FeatureEnum> withRelated(FeatureEnum feature) {
    const _FI id(feature);
    std::vector<FeatureEnum> features{feature};
    for (std::uint32_t i = 0; i < id.getRelatedCount(); ++i) {
        features.push_back(id.getRelated(i));
    }
    return features;
}

/// Draws a number that is never given out again. Beyond the last one the counter stays where it is,
/// so that it can't run over.
std::int32_t drawRunTimeValue(FeatureEnum feature, const CXString& text) {
    std::int32_t number = nextRunTimeValue.load();
    do {
        if (number == std::numeric_limits<std::int32_t>::max()) {
            FeatureValueDataBase::raiseUnknownValue(feature, text);
        }
    } while (!nextRunTimeValue.compare_exchange_weak(number, number + 1));
    return number;
}

} // namespace

FeatureValue::FeatureValue(std::int32_t value)
    : m_value(value), m_info(FeatureValueDataBase().findFeatureValueInfo(value)) {}

FeatureValue::FeatureValue(FeatureEnum feature, const CXString& text)
    : FeatureValue(FeatureValueDataBase().getFeatureValueInfo(feature, text)) {}

std::optional<FeatureValue> FeatureValue::find(FeatureEnum feature, const CXString& text) {
    FeatureValueReference info = FeatureValueDataBase().findFeatureValueInfo(feature, text);
    return info ? std::optional(FeatureValue(std::move(info))) : std::nullopt;
}

const FeatureValueInfo& FeatureValue::getInfo() const {
    if (!m_info) {
        FeatureValueDataBase::raiseUnknownValue(m_value);
    }
    return *m_info;
}

CXString FeatureValue::getDisplayString() const {
    const FeatureValueInfo& info = getInfo();
    return info.m_displayStringID == 0 ? info.m_text
                                       : ResourceLibrary().getString(info.m_displayStringID);
}

std::uint32_t FeatureValue::getFeatureCount() const {
    return static_cast<std::uint32_t>(getInfo().m_features.size());
}

bool FeatureValue::belongsTo(FeatureEnum feature) const {
    const auto& features = getInfo().m_features;
    return std::ranges::find(features, feature) != features.end();
}

bool FeatureValue::isShared() const { return belongsToAny() || getFeatureCount() > 1; }

bool FeatureValue::isRunTimeValue() const { return m_value >= value::firstRunTimeValue; }

bool FeatureValue::operator<(const FeatureValue& other) const {
    if (isRunTimeValue() && other.isRunTimeValue()) {
        return getDisplayString() < other.getDisplayString();
    }
    return m_value < other.m_value;
}

FeatureValue FeatureValue::convertToFeature(const _FI& feature) const {
    if (belongsToAny()) {
        return *this;
    }
    return find(feature.getFeature(), getText()).value_or(FeatureValue());
}

bool FeatureValue::isKnownValue(FeatureEnum feature, const CXString& text) {
    return FeatureValueDataBase().hasFeatureValue(feature, text);
}

bool FeatureValue::isValidNumber(std::int32_t value) {
    return FeatureValueDataBase().hasValue(value);
}

FeatureValue FeatureValue::createNewValueEnum(FeatureEnum feature, const CXString& text,
                                              const CXString& syntax, std::uint32_t type,
                                              std::uint32_t displayStringID,
                                              std::uint32_t imageID) {
    if (text.length() > FeatureValueDataBase::maximumRunTimeLength) {
        FeatureValueDataBase::raiseUnknownValue(feature, text);
    }
    const OwnedCriticalResource hold(RunTimeValues::getCriticalResource());
    std::vector<FeatureEnum> features = withRelated(feature);
    for (const FeatureEnum sharing : features) {
        if (isKnownValue(sharing, text)) {
            Raise<DuplicateFeatureValueDBEntryException>()(
                "FeatureValue::createNewValueEnum(): duplicate FVDB entry for feature %d and "
                "value '%s'.\r\n",
                sharing, text);
        }
    }
    const std::int32_t number = drawRunTimeValue(feature, text);
    if (isValidNumber(number)) {
        Raise<DuplicateFeatureValueDBEntryException>()(
            "FeatureValue::createNewValueEnum(): duplicate FVDB entry for value %d.\r\n", number);
    }
    const AVTE kind = type == 0 ? syntaxToAVTE(syntax) : static_cast<AVTE>(type);
    return FeatureValue(FeatureValueDataBase().addValue(
        {number, std::move(features), text, {}, displayStringID, imageID, syntax, kind}));
}

FeatureValue FeatureValue::fromAttrValue(const _FI& feature, const AttrValue& value) {
    const AVTE type = value.getAttrValueType();
    const bool mayCreate = isUserType(type) && feature.hasAVTE(type);
    return findOrCreate(feature, value.getIppValue(), mayCreate, value.getIppSyntax());
}

FeatureValue FeatureValue::fromText(const _FI& feature, const CXString& text) {
    return findOrCreate(feature, text, feature.isUserDefinable(), feature.getPreferredSyntax());
}

FeatureValue FeatureValue::findOrCreate(const _FI& feature, const CXString& text, bool mayCreate,
                                        const CXString& syntax) {
    const FeatureEnum number = feature.getFeature();
    if (!mayCreate) {
        return {number, text};
    }
    if (auto known = find(number, text)) {
        return *std::move(known);
    }
    // Another thread may bring the same text along.
    const OwnedCriticalResource hold(RunTimeValues::getCriticalResource());
    auto known = find(number, text);
    return known ? *std::move(known) : createNewValueEnum(number, text, syntax, 0, 0, 0);
}

} // namespace zent
