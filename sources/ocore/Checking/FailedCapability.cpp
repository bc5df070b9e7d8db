#include "ocore/Checking/FailedCapability.h"

namespace zent {

bool FailedCapability::hasSameCapability(const SettingsProblem& other) const {
    return hasSamePlace(other) &&
           m_capability.isEqual(static_cast<const FailedCapability&>(other).m_capability);
}

} // namespace zent
