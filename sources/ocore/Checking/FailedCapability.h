#pragma once

#include "ocore/Checking/SettingsProblem.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"

namespace zent {

/// A value that fails one of this system's own capabilities.
class FailedCapability : public SettingsProblem {
public:
    Kind getKind() const override { return Kind::failedCapability; }
    const _CI& getCapability() const { return m_capability; }

protected:
    FailedCapability(SettingsContext context, const _CI& capability)
        : SettingsProblem(std::move(context)), m_capability(capability) {}
    FailedCapability(const FailedCapability&) = default;
    FailedCapability& operator=(const FailedCapability&) = default;

    bool hasSameCapability(const SettingsProblem& other) const;

private:
    _CI m_capability;
};

} // namespace zent
