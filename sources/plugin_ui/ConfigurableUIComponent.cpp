#include "plugin_ui/ConfigurableUIComponent.h"

namespace zent {

bool ConfigurableUIComponent::configure() {
    std::size_t survivors = 0;
    for (std::size_t i = 0; i < getChildren().size();) {
        MessageProcessor& child = *getChildren()[i];
        const Support support = child.getSupport();
        if (support == Support::unsupported) {
            removeChild(child);
            continue;
        }
        survivors += support == Support::supported ? 1 : 0;
        ++i;
    }
    return survivors > 0;
}

void ConfigurableUIComponent::setParentFeature(FeatureEnum feature) {
    m_parentFeature = feature;
    for (const auto& child : getChildren()) {
        child->setParentFeature(feature);
    }
}

bool ConfigurableUIComponent::isFeatureSupported(const _FI& feature) const {
    return m_parentFeature == jobLevel
               ? getCapabilities().isFeatureSupported(feature)
               : getCapabilities().isMemberOf(_FI(m_parentFeature), feature);
}

} // namespace zent
