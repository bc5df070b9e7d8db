#include "plugin_ui/ConfigurableUIComponent.h"

#include "plugin_ui/Features/UIFeature.h"

namespace zent {

bool ConfigurableUIComponent::configure() {
    std::size_t survivors = 0;
    for (std::size_t i = 0; i < getChildren().size();) {
        auto* const feature = dynamic_cast<UIFeature*>(getChildren()[i].get());
        if (feature != nullptr && !feature->isSupported()) {
            removeChild(*feature);
            continue;
        }
        survivors += feature != nullptr ? 1 : 0;
        ++i;
    }
    return survivors > 0;
}

void ConfigurableUIComponent::setParentFeature(FeatureEnum feature) {
    m_parentFeature = feature;
    for (const auto& child : getChildren()) {
        if (auto* const childFeature = dynamic_cast<UIFeature*>(child.get())) {
            childFeature->setParentFeature(feature);
        }
    }
}

bool ConfigurableUIComponent::isFeatureSupported(const _FI& feature) const {
    return m_parentFeature == jobLevel
               ? getCapabilities().isFeatureSupported(feature)
               : getCapabilities().isMemberOf(_FI(m_parentFeature), feature);
}

} // namespace zent
