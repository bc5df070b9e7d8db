#pragma once

#include "ocore/Checking/SettingsProblem.h"

namespace zent {

/// An attribute that the printer doesn't have, or not in this place. It is removed.
class UnsupportedAttribute final : public SettingsProblem {
public:
    explicit UnsupportedAttribute(SettingsContext context) : SettingsProblem(std::move(context)) {}

    SettingsRepair findRepair(const Settings& defaults) const override;
    std::unique_ptr<SettingsProblem> clone() const override;
    bool isEqual(const SettingsProblem& other) const override { return hasSamePlace(other); }
    Kind getKind() const override { return Kind::unsupportedAttribute; }
};

} // namespace zent
