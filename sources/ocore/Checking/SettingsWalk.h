#pragma once

#include <cstdint>

#include "ocore/Capabilities/CapabilityIndex.h"
#include "ocore/Checking/SettingsContext.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"

namespace zent {

/// A list on the way of a check down a ticket. It lives on the stack and refers to the levels
/// above, so that going down costs nothing; only a problem takes a copy of the way, as a
/// SettingsContext.
struct WalkLevel {
    AttrNodeList& list;
    // Null at the top, as is all that says something about the holder.
    const WalkLevel* enclosing = nullptr;
    AttrNode* holder = nullptr; // the node that holds the list
    std::uint32_t holderPosition = 0;
    const AttributeCapabilities* holderCapabilities = nullptr; // by the holder's own name
    // The name by which a set is known, and its members with it, since these are just called
    // "value"; null for all other lists.
    const CXString* setName = nullptr;
    const AttributeCapabilities* setAttribute = nullptr;
    FeatureEnum parentFeature = TJTF_ANY;  // the collection feature that the list belongs to
    FeatureEnum requiredMember = TJTF_ANY; // what the list makes no sense without

    bool isSet() const { return setName != nullptr; }
};

/// A node of such a list.
struct WalkNode {
    const WalkLevel& level;
    AttrNode& node;
    std::uint32_t position;
    const CXString& name; // what it is known as
    const AttributeCapabilities& attribute;
    bool isRequired() const {
        return level.requiredMember != TJTF_ANY && attribute.feature == level.requiredMember;
    }
};

SettingsContext makeContext(const WalkNode& place);
/// Makes the context of a feature that a list should hold and lacks.
SettingsContext makeMissingContext(const WalkLevel& level, const _FI& feature);

} // namespace zent
