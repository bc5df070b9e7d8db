#include "ocore/Checking/FailedEmbeddedSpacesCapability.h"

#include "ocore/Attributes/PrimitiveString.h"

namespace zent {

SettingsRepair FailedEmbeddedSpacesCapability::findRepair(const Settings& /*defaults*/) const {
    const AttrValue& value = getNodeValue();
    if (!value.isPrimitiveString()) {
        return makeRemoval();
    }
    auto copy = value.clone();
    auto& text = static_cast<PrimitiveString&>(*copy);
    text.setValue(replaceAll(text.getValue(), u" ", u"_"));
    return makeReplacement(std::move(copy));
}

std::unique_ptr<SettingsProblem> FailedEmbeddedSpacesCapability::clone() const {
    return std::make_unique<FailedEmbeddedSpacesCapability>(*this);
}

bool FailedEmbeddedSpacesCapability::isEqual(const SettingsProblem& other) const {
    return dynamic_cast<const FailedEmbeddedSpacesCapability*>(&other) != nullptr &&
           hasSameCapability(other);
}

} // namespace zent
