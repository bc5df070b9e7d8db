#pragma once

#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent {

/// A text that says whom a job is charged to, in what the printer's accounting takes.
class AccountUIFeature : public TextEntryUIFeature {
public:
    using TextEntryUIFeature::TextEntryUIFeature;

    void initializeFeature() override;
    bool validate(platform::WindowHandle window) override;

private:
    bool isRequired() const;
};

} // namespace zent
