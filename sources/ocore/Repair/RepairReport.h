#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ocore/Checking/SettingsProblemList.h"
#include "ocore/Repair/RepairLocation.h"

namespace zent {

/// A value as documents write it and as users read it; of a list the values in it, in order.
struct RepairValue {
    CXString text;
    CXString display;
    std::shared_ptr<const AttrValue> value; // a copy; null where there is none
};

/// What a ticket does that the printer can't.
enum class ProblemRule {
    unsupportedAttribute,
    unsupportedValue,
    outOfRange, // a number, or the length of a text
    embeddedSpaces,
    missingFeature,
};

/// One problem of a ticket, and what a repair does about it.
struct RepairEntry {
    SettingsProblem::Kind kind = SettingsProblem::Kind::unsupportedAttribute;
    RepairLocation location;
    FeatureEnum feature = TJTF_ANY; // TJTF_ANY for an attribute that is no feature
    CXString attribute;             // such as "media-color"
    CXString path;                  // such as "page-overrides[2]/media-col/media-color"
    CXString featureName;           // for users
    RepairValue oldValue;           // empty for what is missing
    ProblemRule rule = ProblemRule::unsupportedAttribute;
    CXString capability; // the attribute of the capability list that decides; empty if unknown
    bool hasLimits = false;
    std::int32_t lowerLimit = 0;
    std::int32_t upperLimit = 0;
    RepairAction action = RepairAction::remove;
    RepairValue newValue; // empty for a removal
    CXString repairText;  // for users: the new value, or what else the repair does
};

/// How a report words the problems of a ticket and their repairs.
enum class RepairWording : std::uint32_t {
    offered, // repairs that the user may refuse
    made,    // repairs that have been made
    none,    // problems alone
};

/// The problems of a ticket and how they would be repaired, for programs as a list and for users as
/// a text. It is made before the repair, and doesn't depend on the ticket after that.
class RepairReport {
public:
    /// `defaults` are the printer's default settings, from which repairs take their values. Raises
    /// what reading the resource library raises.
    RepairReport(const SettingsProblemList& problems, const Settings& defaults);

    /// By groups: attributes, values, missing features; in each by the part of the ticket.
    const std::vector<RepairEntry>& getEntries() const { return m_entries; }
    /// Lines that end in CR LF: a heading for each group and each part of the ticket, and a line
    /// for each problem.
    CXString getText(RepairWording wording) const;
    /// The line of one entry, without its indentation and end.
    static CXString getLine(const RepairEntry& entry, RepairWording wording);

private:
    std::vector<RepairEntry> m_entries;
};

} // namespace zent
