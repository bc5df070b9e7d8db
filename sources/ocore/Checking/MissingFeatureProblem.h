#pragma once

#include "ocore/Checking/SettingsProblem.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"

namespace zent {

/// A feature that a collection makes no sense without. It is added from the printer's defaults;
/// where they don't hold it, the collection goes.
class MissingFeatureProblem final : public SettingsProblem {
public:
    MissingFeatureProblem(SettingsContext context, const _FI& feature)
        : SettingsProblem(std::move(context)), m_feature(feature) {}

    void fix(const Settings& defaults, RemovedNodes& removed) override;
    SettingsRepair findRepair(const Settings& defaults) const override;
    std::unique_ptr<SettingsProblem> clone() const override;
    bool isEqual(const SettingsProblem& other) const override;
    CXString getProblemFeatureName() const override;
    Kind getKind() const override { return Kind::missingFeature; }

    const _FI& getFeature() const { return m_feature; }

private:
    _FI m_feature;
};

} // namespace zent
