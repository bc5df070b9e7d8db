#pragma once

#include "ocore/Checking/FailedCapability.h"

namespace zent {

/// A text with spaces where the printer takes none. The repair makes an underscore of each.
class FailedEmbeddedSpacesCapability final : public FailedCapability {
public:
    FailedEmbeddedSpacesCapability(SettingsContext context, const _CI& capability)
        : FailedCapability(std::move(context), capability) {}

    SettingsRepair findRepair(const Settings& defaults) const override;
    std::unique_ptr<SettingsProblem> clone() const override;
    bool isEqual(const SettingsProblem& other) const override;
};

} // namespace zent
