// The index joins what three sources say of an attribute: the feature table, the capability table,
// and the printer's list. To look it up there for each node of a ticket would take a walk over the
// list each time.

#include "ocore/Capabilities/CapabilityIndex.h"

#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

constexpr std::u16string_view supportedSuffix = u"-supported";

// The lists of the printer as a whole are named like the capabilities of attributes.
const CXString& jobAttributes = keepForever<CXString>(u"job-creation-attributes");
const CXString& userDefinedAttributes = keepForever<CXString>(u"user-defined-values");

} // namespace

CapabilityIndex::CapabilityIndex(const AttrNodeList& capabilities) {
    addFeatures();
    addSupportedValues(capabilities);
    mark(jobAttributes, &AttributeCapabilities::isJobAttribute);
    mark(userDefinedAttributes, &AttributeCapabilities::isUserDefined);
}

void CapabilityIndex::addFeatures() {
    const CapabilityDataBase table;
    for (FeatureEnum number = feature::first; number <= feature::last; ++number) {
        AttributeCapabilities& attribute = m_attributes[_FI(number).getName().view()];
        attribute.feature = number;
        for (const CapabilityInfo& row : table.getRows(number)) {
            if (row.m_class == capabilityClass::extension) {
                attribute.extensions.emplace_back(number, row.m_type);
            }
            attribute.hasValueSet |= row.m_type == CAPTYPE_SUPPORTED_VALUES;
        }
    }
}

void CapabilityIndex::addSupportedValues(const AttrNodeList& capabilities) {
    for (std::uint32_t i = 0; i < capabilities.getNumberOfNodes(); ++i) {
        const AttrNode& node = capabilities.getNodeAt(i);
        std::u16string_view name = node.getName().view();
        if (!name.ends_with(supportedSuffix)) {
            continue;
        }
        name.remove_suffix(supportedSuffix.size());
        AttributeCapabilities& attribute = m_attributes[name];
        if (!attribute.supported) { // the first of several counts
            attribute.supported.emplace(node.getAttrValue());
        }
    }
}

void CapabilityIndex::mark(const CXString& list, bool AttributeCapabilities::*flag) {
    if (const auto& names = getAttribute(list).supported) {
        for (const std::u16string_view name : names->getKeywords()) {
            m_attributes[name].*flag = true;
        }
    }
}

const AttributeCapabilities& CapabilityIndex::getAttribute(const CXString& name) const {
    static const auto& unknown = keepForever<AttributeCapabilities>();
    const auto found = m_attributes.find(name.view());
    return found == m_attributes.end() ? unknown : found->second;
}

} // namespace zent
