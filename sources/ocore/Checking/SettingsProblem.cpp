#include "ocore/Checking/SettingsProblem.h"

#include "ocore/Faults/Trace.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"

namespace zent {

void SettingsProblem::fix(const Settings& defaults, RemovedNodes& removed) {
    SettingsRepair repair = findRepair(defaults);
    if (repair.action != RepairAction::replace) {
        removeNode(repair.node, removed);
        return;
    }
    AttrNode& node = *repair.node;
    node = AttrNode(AttrID(node.getAttrID()), std::move(repair.value), node.isPrivate());
}

void SettingsProblem::removeNode(const AttrNode* node, RemovedNodes& removed) const {
    const std::vector<SettingsContext::Step>& steps = m_context.getSteps();
    std::size_t depth = steps.size();
    while (depth > 0 && steps[depth - 1].node != node) {
        --depth;
    }
    // A set that has lost its last member goes too, and what has held nothing but that set.
    bool goesOn = depth > 0;
    for (bool isFirst = true; goesOn; isFirst = false) {
        const SettingsContext::Step& step = steps[--depth];
        removed.remove(*step.list, *step.node);
        goesOn = depth > 0 && (!isFirst || step.inSet) && removed.isEmpty(*step.list);
    }
}

SettingsRepair SettingsProblem::makeRemoval() const {
    const std::vector<SettingsContext::Step>& steps = m_context.getSteps();
    // A collection goes as a whole if it makes no sense without the node.
    const bool isWhole = m_context.isRequired() && steps.size() > 1;
    const SettingsContext::Step& step = isWhole ? steps[steps.size() - 2] : steps.back();
    const bool looksAtSet = isWhole || step.inSet;
    return {looksAtSet ? RepairAction::removeFromSet : RepairAction::remove, step.node, nullptr};
}

SettingsRepair SettingsProblem::makeReplacement(std::unique_ptr<AttrValue> value) const {
    return {RepairAction::replace, m_context.getNode(), std::move(value)};
}

bool SettingsProblem::hasSamePlace(const SettingsProblem& other) const {
    return getKind() == other.getKind() && m_context.getNode() == other.m_context.getNode() &&
           m_context.getPath() == other.m_context.getPath();
}

CXString SettingsProblem::getProblemFeatureName() const {
    return getFeatureName(u"SettingsProblem::getProblemFeatureName()");
}

CXString SettingsProblem::getFeatureName(const char16_t* location) const {
    CXString name = getAttributeName();
    if (_FI::isFeatureName(name)) {
        return _FI(name).getDisplayString();
    }
    if (trace::isOutputEnabled()) {
        trace::output(location);
        trace::output(CXString::Format(
            u"Missing translated string in FeatureDataBase for attribute '%s'! The attribute name "
            u"will be returned, but a translated string should really be added.\r\n",
            name));
    }
    return name;
}

} // namespace zent
