#include "ocore/Checking/UnsupportedValue.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"

namespace zent {

namespace {

/// Whether two paths lead through the same attributes, whatever names them.
bool isSamePath(const NestedAttrID& a, const NestedAttrID& b) {
    if (a.getAttrID() != b.getAttrID() || a.getDepth() != b.getDepth()) {
        return false;
    }
    for (std::uint32_t i = 0; i < a.getDepth(); ++i) {
        if (a.getParentName(i) != b.getParentName(i)) {
            return false;
        }
    }
    return true;
}

} // namespace

/// The default of a feature is one for the job as a whole, so it doesn't replace a value that
/// stands anywhere else than the feature does: an exception without it follows the job.
bool UnsupportedValue::mayTakeDefault() const {
    const CXString name = getAttributeName();
    return _FI::isFeatureName(name) &&
           (getContext().isInSet() ||
            isSamePath(getContext().getPath(), _FI(name).getNestedAttrID()));
}

const AttrNode* UnsupportedValue::findDefault(const Settings& defaults) const {
    if (!mayTakeDefault()) {
        return nullptr;
    }
    // The ticket may hold a list where the defaults hold a single value.
    const NestedAttrID& path = getContext().getPath();
    const AttrNodeList* list = defaults.getAttrNodeList();
    for (std::uint32_t i = path.getDepth(); list != nullptr && i-- > 0;) {
        const AttrNode* const parent = list->findNode(AttrID(path.getParentName(i)));
        list = parent == nullptr ? nullptr : embeddedList(*parent);
    }
    return list == nullptr ? nullptr : list->findNode(path.getAttrID());
}

SettingsRepair UnsupportedValue::findRepair(const Settings& defaults) const {
    const AttrNode* const replacement = findDefault(defaults);
    // The value may be the default, and unsupported because of where it stands. Lists are the same
    // if they have as many nodes, which says nothing.
    const bool isOther = replacement != nullptr && (replacement->getAttrValue().isList() ||
                                                    !(*replacement == *getContext().getNode()));
    return isOther ? makeReplacement(replacement->getAttrValue().clone()) : makeRemoval();
}

std::unique_ptr<SettingsProblem> UnsupportedValue::clone() const {
    return std::make_unique<UnsupportedValue>(*this);
}

} // namespace zent
