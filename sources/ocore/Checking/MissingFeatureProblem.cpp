#include "ocore/Checking/MissingFeatureProblem.h"

namespace zent {

SettingsRepair MissingFeatureProblem::findRepair(const Settings& defaults) const {
    if (const auto node = defaults.getNode(m_feature)) {
        return {RepairAction::addDefault, nullptr, node->getAttrValue().clone()};
    }
    return {RepairAction::removeFromSet, getContext().getNode(), nullptr};
}

void MissingFeatureProblem::fix(const Settings& defaults, RemovedNodes& removed) {
    SettingsRepair repair = findRepair(defaults);
    if (repair.action == RepairAction::addDefault) {
        getContext().getList().addNode(
            AttrNode(m_feature.getAttrID(), std::move(repair.value), false));
        return;
    }
    SettingsProblem::fix(defaults, removed);
}

std::unique_ptr<SettingsProblem> MissingFeatureProblem::clone() const {
    return std::make_unique<MissingFeatureProblem>(*this);
}

bool MissingFeatureProblem::isEqual(const SettingsProblem& other) const {
    return hasSamePlace(other) &&
           m_feature.isEqual(static_cast<const MissingFeatureProblem&>(other).m_feature);
}

CXString MissingFeatureProblem::getProblemFeatureName() const {
    return getFeatureName(u"MissingFeatureProblem::getProblemFeatureName()");
}

} // namespace zent
