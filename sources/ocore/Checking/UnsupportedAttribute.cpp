#include "ocore/Checking/UnsupportedAttribute.h"

namespace zent {

SettingsRepair UnsupportedAttribute::findRepair(const Settings& /*defaults*/) const {
    return makeRemoval();
}

std::unique_ptr<SettingsProblem> UnsupportedAttribute::clone() const {
    return std::make_unique<UnsupportedAttribute>(*this);
}

} // namespace zent
