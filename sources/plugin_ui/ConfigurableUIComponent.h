#pragma once

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "plugin_ui/MessageProcessorWithChildren.h"
#include "plugin_ui/UIConfiguration.h"

namespace zent {

/// A component that knows the printer and the level of the ticket that it works on.
class ConfigurableUIComponent : public MessageProcessorWithChildren {
public:
    /// The level of the job itself.
    static constexpr FeatureEnum jobLevel{};

    explicit ConfigurableUIComponent(UIConfiguration& configuration,
                                     FeatureEnum parentFeature = jobLevel)
        : m_configuration(configuration), m_parentFeature(parentFeature) {}

    /// Takes the features that the printer doesn't have out of the tree, for good; their items stay
    /// hidden. Returns whether any of the children is a feature that stays.
    virtual bool configure();
    /// Names the page-level feature that this works in, also to the children that are features.
    void setParentFeature(FeatureEnum feature) override;

    UIConfiguration& getConfiguration() const { return m_configuration; }
    const Capabilities& getCapabilities() const { return *m_configuration.capabilities; }
    const UserPreferences& getPreferences() const { return m_configuration.preferences; }
    FeatureEnum getParentFeature() const { return m_parentFeature; }
    /// Where a change is reported, TJTF_ANY stands for the job as well.
    bool isJobLevel() const { return m_parentFeature == jobLevel || m_parentFeature == TJTF_ANY; }
    bool hasParentFeature() const { return m_parentFeature != jobLevel; }
    /// Whether the printer has the feature at this level.
    bool isFeatureSupported(const _FI& feature) const;

private:
    UIConfiguration& m_configuration;
    FeatureEnum m_parentFeature;
};

} // namespace zent
