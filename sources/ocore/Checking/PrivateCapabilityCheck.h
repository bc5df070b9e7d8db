#pragma once

#include "ocore/Checking/SettingsProblemList.h"
#include "ocore/Checking/SettingsWalk.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/Settings.h"

namespace zent {

/// Checks an attribute of a ticket against the capabilities that are this system's own: ranges and
/// limits of numbers and of lengths, spaces in texts, and features that a printer lacks.
///
/// A bad entry in a capability document may never stop a job: what can't be read passes, with a
/// trace.
class PrivateCapabilityCheck {
public:
    /// `place` is the attribute, `value` the node with its value: the same one, or the first member
    /// of an attribute that is a set.
    PrivateCapabilityCheck(const Settings& capabilities, const WalkNode& place,
                           const WalkNode& value, SettingsProblemList& problems)
        : m_capabilities(capabilities), m_place(place), m_value(value), m_problems(problems) {}

    /// False if it added a problem.
    bool validateAgainstPrivateCapability(const _CI& capability);

private:
    struct Limits {
        std::int32_t lower = 0;
        std::int32_t upper = 0;
    };

    bool check(const _CI& capability);
    bool checkRange(const _CI& capability);
    bool checkUpperLimit(const _CI& capability);
    /// Adds a problem if the value lies outside `limits`; a repair then keeps to the limits
    /// `failing`.
    bool checkLimits(const _CI& capability, const Limits& limits, const Limits& failing);
    bool checkIsSupported(const _CI& capability);
    bool checkEmbeddedSpaces(const _CI& capability);

    const Settings& m_capabilities;
    const WalkNode& m_place;
    const WalkNode& m_value;
    SettingsProblemList& m_problems;
};

} // namespace zent
