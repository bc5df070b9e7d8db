#pragma once

#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent {

/// The sender or the recipient of a job. If the user prefers the name of the logon, it can't be
/// changed here; it stays in the ticket when the preference goes.
class PersonNameUIFeature : public TextEntryUIFeature {
public:
    using TextEntryUIFeature::TextEntryUIFeature;

    void updateFeatureWithNewSettings() override;

private:
    bool isLogonNamePreferred() const;
};

} // namespace zent
