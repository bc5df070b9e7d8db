#pragma once

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Capabilities/SupportedValues.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"

namespace zent {

/// All that a capability list and the tables say of one attribute.
struct AttributeCapabilities {
    FeatureEnum feature = TJTF_ANY; // TJTF_ANY if the attribute is none
    std::optional<SupportedValues> supported;
    std::vector<_CI> extensions; // the capabilities of this system's own, in table order
    bool isJobAttribute = false; // accepted in a ticket
    bool isUserDefined = false;  // takes values of the user's own
    bool hasValueSet = false;    // the table knows a set of supported values
};

/// A capability list by the names of the attributes that it is about, built once and never changed:
/// a check of a ticket asks it at each node. The list mustn't change as long as the index lives.
class CapabilityIndex {
public:
    explicit CapabilityIndex(const AttrNodeList& capabilities);

    /// What is known of an attribute; nothing of those that nobody knows.
    const AttributeCapabilities& getAttribute(const CXString& name) const;

private:
    void addFeatures();
    void addSupportedValues(const AttrNodeList& capabilities);
    /// Sets a flag of all attributes that a list of the printer as a whole names.
    void mark(const CXString& list, bool AttributeCapabilities::*flag);

    std::unordered_map<std::u16string_view, AttributeCapabilities> m_attributes;
};

} // namespace zent
