#pragma once

#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent {

/// The job's name. If the user prefers jobs to be called after their documents, it can't be changed
/// here.
class JobNameUIFeature : public TextEntryUIFeature {
public:
    JobNameUIFeature(UIConfiguration& configuration, std::uint16_t extraItemId,
                     std::uint16_t labelId, std::uint16_t editId);

    void updateFeatureWithNewSettings() override;
    bool validate(platform::WindowHandle window) override;
};

} // namespace zent
