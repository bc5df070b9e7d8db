#include "ocore/Capabilities/Capabilities.h"

#include <algorithm>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

AttrNode keywordNode(const CXString& keyword) {
    return {attrNames::value(), std::make_unique<IppKeyword>(keyword), false};
}

const AttrNodeList* findSet(const Settings& settings, const _CI& set) {
    return set.getNestedAttrID().findList(*settings.getAttrNodeList());
}

[[noreturn]] void raiseMissing(CapabilityType type, const char* operation) {
    Raise<MissingCapabilityDataException>()(
        "Capabilities::%S(): Could not find the %s capability.\r\n", operation,
        getCapabilityTypeText(type));
}

} // namespace

Capabilities::Capabilities(const PrinterModel& model, std::uint32_t form)
    : m_model(model.clone()), m_instructionForm(form), m_source(model, form) {
    m_source.load(*m_settings.getAttrNodeList());
    finishConstruction();
}

Capabilities::Capabilities(const PrinterModel& model, std::uint32_t form,
                           const CapabilitySource& source)
    : m_model(model.clone()), m_instructionForm(form), m_source(model, form) {
    source.load(*m_settings.getAttrNodeList());
    finishConstruction();
}

void Capabilities::finishConstruction() {
    std::vector<_FI> missing;
    m_source.addFactoryCapabilities(m_settings, missing);
    for (const _FI& feature : missing) {
        removeFeature(feature);
    }
    adjustMediaCapabilities();
    m_collectionFeatures = {_FI(feature::coverFront),      _FI(feature::coverBack),
                            _FI(feature::pageOverrides),   _FI(feature::insertSheet),
                            _FI(feature::separatorSheets), _FI(feature::pclPaperSourceCol)};
    m_index = std::make_unique<CapabilityIndex>(*m_settings.getAttrNodeList());
}

void Capabilities::removeFeature(const _FI& feature) {
    for (const std::uint32_t type : _CI::getCapabilityTypes(feature.getFeature())) {
        const _CI capability(feature.getFeature(), type);
        while (m_settings.isSpecified(capability)) {
            m_settings.setFeatureValue(capability, FeatureValue());
        }
    }
    m_settings.getAttrNodeList()->removeNodeEverywhere(keywordNode(feature.getName()));
}

void Capabilities::adjustMediaCapabilities() {
    const _FI mediaKey(feature::mediaKey);
    const _CI userDefined(TJTF_ANY, CAPTYPE_USER_DEFINABLE);
    if (!isMemberOf(_FI(feature::mediaCol), mediaKey)) {
        addKeyword(_CI(feature::mediaCol, CAPTYPE_SUPPORTED_FEATURES), mediaKey);
    }
    if (!hasKeyword(userDefined, mediaKey.getName())) {
        addKeyword(userDefined, mediaKey);
    }
    // Separator sheets never offer media of their own.
    const _CI separators(feature::separatorSheets, CAPTYPE_SUPPORTED_FEATURES);
    removeKeyword(separators, _FI(feature::mediaCol));
    removeKeyword(separators, _FI(feature::media));
}

void Capabilities::addKeyword(const _CI& set, const _FI& feature) {
    m_settings.setString(set, feature.getName(), m_settings.getInstanceCount(set));
}

void Capabilities::removeKeyword(const _CI& set, const _FI& feature) {
    AttrNodeList* const list = set.getNestedAttrID().findList(*m_settings.getAttrNodeList());
    if (list == nullptr) {
        return;
    }
    const AttrNode keyword = keywordNode(feature.getName());
    while (AttrNode* const equal = list->findEqualNode(keyword)) {
        list->removeNode(equal);
    }
}

bool Capabilities::hasKeyword(const _CI& set, const CXString& keyword) const {
    const AttrNodeList* const list = findSet(m_settings, set);
    return list != nullptr && list->findEqualNode(keywordNode(keyword)) != nullptr;
}

bool Capabilities::isPrinterDefaultAvailable(const _FI& feature, bool hasCapability) const {
    switch (feature.getSupportClass()) {
    case supportClass::always:
        return true;
    case supportClass::never:
        return false;
    default:
        return m_model->isFeatureEnabled(feature, hasCapability, m_instructionForm);
    }
}

bool Capabilities::isFeatureSupported(const _FI& feature) const {
    if (hasKeyword(_CI(TJTF_ANY, CAPTYPE_SUPPORTED_FEATURES), feature.getName()) ||
        getBool(feature.getFeature(), CAPTYPE_IS_SUPPORTED, false)) {
        return true;
    }
    FeatureEnum parent = TJTF_ANY;
    return feature.getParentFeature(&parent) && isFeatureSupported(_FI(parent)) &&
           isMemberOf(_FI(parent), feature);
}

bool Capabilities::isMemberOf(const _FI& container, const _FI& member) const {
    if (!_CI::hasCapability(container.getFeature(), CAPTYPE_SUPPORTED_FEATURES)) {
        return false;
    }
    if (hasKeyword(_CI(container.getFeature(), CAPTYPE_SUPPORTED_FEATURES), member.getName())) {
        return true;
    }
    FeatureEnum parent = TJTF_ANY;
    return member.getParentFeature(&parent) && parent != container.getFeature() &&
           isMemberOf(container, _FI(parent));
}

void Capabilities::getFeatureCapabilities(const _FI& feature, std::int32_t& lower,
                                          std::int32_t& upper) const {
    const _CI range(feature.getFeature(), CAPTYPE_INT_RANGE);
    if (!m_settings.getRange(range, &lower, &upper)) {
        Raise<MissingCapabilityDataException>()(
            "Capabilities::getFeatureCapabilities(range of integer): Could not find the %s "
            "capability.\r\n",
            getCapabilityTypeText(CAPTYPE_INT_RANGE));
    }
    const std::uint32_t count = range.isInSetOf() ? m_settings.getInstanceCount(range) : 1;
    for (std::uint32_t i = 1; i < count; ++i) {
        std::int32_t low = lower;
        std::int32_t high = upper;
        if (m_settings.getRange(range, &low, &high, i)) {
            lower = std::min(lower, low);
            upper = std::max(upper, high);
        }
    }
}

std::uint32_t Capabilities::getNumber(const _FI& feature, CapabilityType type,
                                      const char* operation) const {
    const _CI capability(feature.getFeature(), type);
    std::int32_t number = 0;
    if (!m_settings.getLong(capability, &number)) {
        raiseMissing(type, operation);
    }
    return static_cast<std::uint32_t>(number);
}

std::uint32_t Capabilities::getUpperLimit(const _FI& feature) const {
    constexpr const char* operation = "getUpperLimit";
    if (_CI::hasCapability(feature.getFeature(), CAPTYPE_INT_UPPER_LIMIT)) {
        return getNumber(feature, CAPTYPE_INT_UPPER_LIMIT, operation);
    }
    // The capability table has no row for some features whose values users may invent. The
    // documents name their limits like the others.
    const AttrID limit(feature.getName() + u"-allowable-char-limit");
    std::int32_t number = 0;
    if (!m_settings.getAttrNodeList()->OrdoAttrToLong(&number, limit)) {
        raiseMissing(CAPTYPE_INT_UPPER_LIMIT, operation);
    }
    return static_cast<std::uint32_t>(number);
}

std::uint32_t Capabilities::getPrecision(const _FI& feature) const {
    return getNumber(feature, CAPTYPE_PRECISION, "getPrecision");
}

std::uint32_t Capabilities::getCharacterSetRestriction(const _FI& feature) const {
    return getNumber(feature, CAPTYPE_CHAR_RESTRICTION, "getCharacterSetRestriction");
}

bool Capabilities::getBool(FeatureEnum feature, CapabilityType type, bool otherwise) const {
    bool answer = otherwise;
    if (_CI::hasCapability(feature, type)) {
        m_settings.getBool(_CI(feature, type), &answer);
    }
    return answer;
}

bool Capabilities::allowsEmbeddedSpaces(const _FI& feature) const {
    return getBool(feature.getFeature(), CAPTYPE_EMBEDDED_SPACES, true);
}

bool Capabilities::isSeparateCoversCapable() const {
    return getBool(TJTF_ANY, CAPTYPE_SEPARATE_COVERS, true);
}

bool Capabilities::isInsertMultipleMediaCapable() const {
    return getBool(TJTF_ANY, CAPTYPE_INSERT_MULTIPLE_MEDIA, true);
}

bool Capabilities::isTiffPrintSaveCapable() const {
    return getBool(TJTF_ANY, CAPTYPE_TIFF_PRINT_SAVE, true);
}

bool Capabilities::isUserDefinable(const _FI& feature) const {
    return hasKeyword(_CI(TJTF_ANY, CAPTYPE_USER_DEFINABLE), feature.getName());
}

AjtPrinterTraits Capabilities::getAjtPrinterTraits() const {
    AjtPrinterTraits traits = m_model->getTraits();
    traits.mediaWeightDefault = isFeatureSupported(_FI(feature::mediaWeightMetric));
    return traits;
}

} // namespace zent
