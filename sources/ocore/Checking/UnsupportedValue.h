#pragma once

#include "ocore/Checking/SettingsProblem.h"

namespace zent {

/// A value that the printer doesn't take. It gives way to the printer's default or, where there is
/// none, is removed.
class UnsupportedValue final : public SettingsProblem {
public:
    explicit UnsupportedValue(SettingsContext context) : SettingsProblem(std::move(context)) {}

    SettingsRepair findRepair(const Settings& defaults) const override;
    std::unique_ptr<SettingsProblem> clone() const override;
    bool isEqual(const SettingsProblem& other) const override { return hasSamePlace(other); }
    Kind getKind() const override { return Kind::unsupportedValue; }

private:
    bool mayTakeDefault() const;
    const AttrNode* findDefault(const Settings& defaults) const;
};

} // namespace zent
