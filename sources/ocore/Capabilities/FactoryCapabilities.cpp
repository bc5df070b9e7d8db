#include "ocore/Capabilities/FactoryCapabilities.h"

#include <utility>

#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

struct TextLimit {
    FeatureEnum first;
    FeatureEnum last;
    std::int32_t limit;
};

// Texts that every printer cuts at the same length, in characters.
constexpr TextLimit textLimits[] = {
    {feature::saveName, feature::saveName, 255},
    {feature::formSaveName, feature::formSaveName, 255},
    {feature::formName, feature::formName, 255},
    {feature::undefinedSourceRgbImages, feature::colorDestinationProfileBack, 255},
    {feature::trcName, feature::trcName, 30},
    {feature::finishingTemplate, feature::finishingTemplate, 30},
    {feature::mediaDescription, feature::mediaDescription, 255},
    {feature::media, feature::mediaKey, 255},
    {feature::mediaType, feature::mediaType, 30},
};

} // namespace

FactoryCapabilities::FactoryCapabilities(const PrinterModel& model, std::uint32_t form)
    : ResourceCapabilities(model.getCapabilityResource(form)), m_model(model.clone()) {}

void FactoryCapabilities::addFactoryCapabilities(Settings& capabilities,
                                                 std::vector<_FI>& missing) const {
    for (const TextLimit& row : textLimits) {
        for (FeatureEnum text = row.first; text <= row.last; ++text) {
            capabilities.setLong(_CI(text, CAPTYPE_INT_UPPER_LIMIT), row.limit);
        }
    }
    m_model->addFactoryCapabilities(capabilities, missing);
}

} // namespace zent
