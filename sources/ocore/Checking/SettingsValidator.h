#pragma once

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Checking/SettingsProblemList.h"
#include "ocore/Checking/SettingsWalk.h"

namespace zent {

/// Walks a ticket, or another list of settings, and finds what a printer can't do. It changes
/// nothing, and it is lenient: an attribute is refused on positive evidence only, and what can't be
/// compared passes.
///
/// Each node costs one look into the capabilities' index, so that the time grows with the number
/// of nodes alone.
class SettingsValidator {
public:
    /// Both must outlive the validator.
    SettingsValidator(const Capabilities& capabilities, SettingsProblemList& problems)
        : m_capabilities(capabilities), m_index(capabilities.getIndex()), m_problems(problems) {}

    /// Adds all problems, in list order, depth first. True if there are none.
    bool validate(AttrNodeList& settings);

private:
    bool validateLevel(const WalkLevel& level);
    bool validateNode(const WalkNode& place);
    bool validateLeaf(const WalkNode& place);
    bool validateAgainstPrivateCapabilities(const WalkNode& place);
    bool validateAgainstPrivateCapabilities(const WalkNode& place, const WalkNode& value);
    /// Goes down to the list that a node holds, and takes along what is known of the node.
    WalkLevel enter(const WalkNode& place, AttrNodeList& list) const;
    /// Adds a problem about a place. Gives false, which the caller returns.
    template <typename Problem>
    bool addProblem(const WalkNode& place);

    static bool hasRequiredMember(const WalkLevel& level);
    static bool isValueSupported(const WalkNode& place, const SupportedValues& supported);
    static bool isAttributeSupported(const WalkNode& place);

    const Capabilities& m_capabilities;
    const CapabilityIndex& m_index;
    SettingsProblemList& m_problems;
};

/// Finds what a printer can't do of a ticket, or of a part of one such as a stock. True if there is
/// nothing. The settings aren't changed; the problems point into them.
inline bool validate(const Capabilities& capabilities, Settings& settings,
                     SettingsProblemList& problems) {
    return SettingsValidator(capabilities, problems).validate(*settings.getAttrNodeList());
}

} // namespace zent
