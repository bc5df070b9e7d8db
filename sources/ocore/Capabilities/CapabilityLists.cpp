// The queries of Capabilities that give lists.

#include <algorithm>

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Faults/Trace.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

/// A value of a capability list; nothing, with a trace, if it isn't known.
void addFeatureValue(std::vector<FeatureValue>& values, const _FI& feature,
                     const AttrValue& member) {
    try {
        values.push_back(FeatureValue::fromAttrValue(feature, member));
    } catch (const std::exception&) {
        trace::output(u"Capabilities::getFeatureCapabilities(list of values)");
        trace::output(CXString::Format(
            u"Tried to create FeatureValue with value '%s' & syntax '%s' for feature '%s'. This is "
            u"not a fatal error. The value is being ignored and it is safe to continue.\r\n",
            member.getIppValue(), member.getIppSyntax(), feature.getName()));
    }
}

} // namespace

std::vector<FeatureValue> Capabilities::getFeatureCapabilities(const _FI& feature,
                                                               bool hasCapability) const {
    std::vector<FeatureValue> values;
    const _CI set(feature.getFeature(), CAPTYPE_SUPPORTED_VALUES);
    if (const AttrNodeList* const list =
            set.getNestedAttrID().findList(*m_settings.getAttrNodeList())) {
        for (std::uint32_t i = 0; i < list->getNumberOfNodes(); ++i) {
            addFeatureValue(values, feature, list->getNodeAt(i).getAttrValue());
        }
    }
    if (isPrinterDefaultAvailable(feature, hasCapability)) {
        values.emplace_back();
    }
    std::ranges::sort(values, [](const auto& a, const auto& b) { return a < b; });
    return values;
}

std::vector<_FI> Capabilities::getMemberFeatures(const _FI& feature) const {
    std::vector<_FI> features;
    const _CI set(feature.getFeature(), CAPTYPE_SUPPORTED_FEATURES);
    const AttrNodeList* const list = set.getNestedAttrID().findList(*m_settings.getAttrNodeList());
    for (std::uint32_t i = 0; list != nullptr && i < list->getNumberOfNodes(); ++i) {
        const CXString name = list->getNodeAt(i).getAttrValue().getIppValue();
        if (_FI::isFeatureName(name)) {
            features.emplace_back(name);
        } else {
            trace::output(
                CXString::Format(u"Capabilities::getFeatureCapabilities(list of features for '%s')",
                                 feature.getName()));
            trace::output(CXString::Format(
                u"Tried to create a FeatureID for the '%s' feature name, but it is unknown. This "
                u"is not a fatal error. The value is being ignored and it is safe to continue.\r\n",
                name));
        }
    }
    std::ranges::sort(features,
                      [](const _FI& a, const _FI& b) { return a.getName() < b.getName(); });
    return features;
}

std::vector<Resolution> Capabilities::getResolutionValues(bool hasCapability) const {
    std::vector<Resolution> resolutions;
    const _FI feature(feature::printerResolution);
    if (isPrinterDefaultAvailable(feature, hasCapability)) {
        resolutions.emplace_back();
    }
    const _CI set(feature.getFeature(), CAPTYPE_SUPPORTED_VALUES);
    const AttrNodeList* const list = set.getNestedAttrID().findList(*m_settings.getAttrNodeList());
    for (std::uint32_t i = 0; list != nullptr && i < list->getNumberOfNodes(); ++i) {
        const AttrValue& member = list->getNodeAt(i).getAttrValue();
        std::int32_t crossFeed = 0;
        std::int32_t feedDirection = 0;
        std::int32_t units = 0;
        if (member.isResolution() && member.getResolutionValues(crossFeed, feedDirection, units)) {
            resolutions.emplace_back(crossFeed, feedDirection, units);
        }
    }
    return resolutions;
}

std::vector<StockSize> Capabilities::getStockSizeValues(bool hasCapability) const {
    std::vector<StockSize> sizes;
    if (isPrinterDefaultAvailable(_FI(feature::xDimension), hasCapability) &&
        isPrinterDefaultAvailable(_FI(feature::yDimension), hasCapability)) {
        sizes.emplace_back();
    }
    const std::vector<StockSize> fitting = StockSize::getSizesWithin(getStockSizeLimits());
    sizes.insert(sizes.end(), fitting.begin(), fitting.end());
    sizes.emplace_back(StockSize::codeOther);
    return sizes;
}

SizeLimits Capabilities::getStockSizeLimits() const {
    SizeLimits limits;
    getFeatureCapabilities(_FI(feature::xDimension), limits.lowestWidth, limits.highestWidth);
    getFeatureCapabilities(_FI(feature::yDimension), limits.lowestHeight, limits.highestHeight);
    return limits;
}

} // namespace zent
