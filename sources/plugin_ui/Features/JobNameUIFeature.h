#pragma once

#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent {

/// The job's name. If the user prefers jobs to be called after their documents, it can't be changed
/// here.
class JobNameUIFeature : public TextEntryUIFeature {
public:
    using TextEntryUIFeature::TextEntryUIFeature;

    void updateFeatureWithNewSettings() override;
    bool validate(platform::WindowHandle window) override;
};

} // namespace zent
