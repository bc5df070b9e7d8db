// The report is made before the repair, from the problems themselves, so that it can show the
// values that the repair is about to replace.

#include "ocore/Repair/RepairReport.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "ocore/Checking/FailedRangeCapability.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/Repair/ValueText.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// The string ids of the headings of the three groups.
using Headings = std::array<std::uint32_t, 3>;

const Headings& headingsOf(RepairWording wording) {
    static constexpr Headings offered{IDS_OFFERED_ATTRIBUTES, IDS_OFFERED_VALUES,
                                      IDS_OFFERED_COMPLETIONS};
    static constexpr Headings made{IDS_MADE_ATTRIBUTES, IDS_MADE_VALUES, IDS_MADE_COMPLETIONS};
    static constexpr Headings none{IDS_FOUND_ATTRIBUTES, IDS_FOUND_VALUES, IDS_FOUND_INCOMPLETE};
    switch (wording) {
    case RepairWording::offered:
        return offered;
    case RepairWording::made:
        return made;
    default:
        return none;
    }
}

/// The position of a problem's group among the headings.
std::size_t groupOf(const RepairEntry& entry) {
    switch (entry.kind) {
    case SettingsProblem::Kind::unsupportedAttribute:
        return 0;
    case SettingsProblem::Kind::missingFeature:
        return 2;
    default:
        return 1;
    }
}

bool isShownBefore(const RepairEntry& a, const RepairEntry& b) {
    const auto key = [](const RepairEntry& entry) {
        return std::tuple(groupOf(entry), entry.location.feature, entry.location.entry);
    };
    return key(a) < key(b);
}

RepairValue makeValue(const CXString& attribute, const AttrValue& value) {
    return {makeValueText(attribute, value), makeValueDisplay(attribute, value), value.clone()};
}

void setRule(RepairEntry& entry, const SettingsProblem& problem) {
    switch (problem.getKind()) {
    case SettingsProblem::Kind::unsupportedAttribute:
        entry.rule = ProblemRule::unsupportedAttribute;
        return;
    case SettingsProblem::Kind::unsupportedValue:
        entry.rule = ProblemRule::unsupportedValue;
        entry.capability = entry.attribute + u"-supported";
        return;
    case SettingsProblem::Kind::missingFeature:
        entry.rule = ProblemRule::missingFeature;
        return;
    case SettingsProblem::Kind::failedCapability:
        break;
    }
    entry.rule = ProblemRule::embeddedSpaces;
    entry.capability = static_cast<const FailedCapability&>(problem).getCapability().getName();
    if (const auto* const range = dynamic_cast<const FailedRangeCapability*>(&problem)) {
        entry.rule = ProblemRule::outOfRange;
        entry.hasLimits = true;
        entry.lowerLimit = range->getLower();
        entry.upperLimit = range->getUpper();
    }
}

void setRepair(RepairEntry& entry, const SettingsRepair& repair, const ResourceLibrary& library) {
    entry.action = repair.action;
    if (repair.value != nullptr) {
        entry.newValue = makeValue(entry.attribute, *repair.value);
    }
    switch (repair.action) {
    case RepairAction::remove:
        entry.repairText = library.getString(IDS_REPAIR_REMOVED);
        break;
    case RepairAction::removeFromSet:
        entry.repairText = library.getString(IDS_REPAIR_REMOVED_FROM_SET);
        break;
    case RepairAction::addDefault:
        entry.repairText = library.getString(IDS_REPAIR_DEFAULT_ADDED);
        break;
    case RepairAction::replace:
        entry.repairText = entry.newValue.display;
        break;
    }
}

RepairEntry makeEntry(const SettingsProblem& problem, const Settings& defaults,
                      const ResourceLibrary& library) {
    const SettingsContext& context = problem.getContext();
    RepairEntry entry;
    entry.kind = problem.getKind();
    entry.location = findLocation(context);
    entry.attribute = problem.getAttributeName();
    if (_FI::isFeatureName(entry.attribute)) {
        entry.feature = _FI(entry.attribute).getFeature();
    }
    entry.path = makePathText(context);
    entry.featureName = problem.getProblemFeatureName();
    if (!context.isMissing()) {
        entry.oldValue = makeValue(entry.attribute, context.getNode()->getAttrValue());
    }
    setRule(entry, problem);
    setRepair(entry, problem.findRepair(defaults), library);
    return entry;
}

} // namespace

RepairReport::RepairReport(const SettingsProblemList& problems, const Settings& defaults) {
    const ResourceLibrary library; // keeps the library loaded until the last text is read
    SettingsProblemList shown(problems);
    while (shown.hasMoreSettingsProblems()) {
        SettingsProblem& problem = shown.getNextSettingsProblem();
        if (problem.refreshContext(*shown.getTicket())) {
            m_entries.push_back(makeEntry(problem, defaults, library));
        }
    }
    std::ranges::stable_sort(m_entries, isShownBefore);
}

CXString RepairReport::getText(RepairWording wording) const {
    const ResourceLibrary library;
    CXString text;
    const RepairEntry* previous = nullptr;
    for (const RepairEntry& entry : m_entries) {
        if (previous == nullptr || groupOf(*previous) != groupOf(entry)) {
            text += previous == nullptr ? u"" : u"\r\n";
            text += library.getString(headingsOf(wording)[groupOf(entry)]);
            text += u"\r\n";
        }
        if (previous == nullptr || previous->location != entry.location) {
            text += u"\r\n\t" + makeLocationText(entry.location) + u":\r\n";
        }
        text += u"\t" + getLine(entry, wording) + u"\r\n";
        previous = &entry;
    }
    return text;
}

CXString RepairReport::getLine(const RepairEntry& entry, RepairWording wording) {
    if (wording == RepairWording::none) {
        return entry.featureName;
    }
    return entry.featureName + u": " + entry.oldValue.display + u" -> " + entry.repairText;
}

} // namespace zent
