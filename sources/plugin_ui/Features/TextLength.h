#pragma once

#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "plugin_ui/Controls/TextBoxUIControl.h"

namespace zent {

/// Whether the printer takes a text as long as the one in a feature's box. If not, tells the user
/// so. A box that can't be changed is never too long.
bool validateLength(platform::WindowHandle window, const TextBoxUIControl& box, const _FI& feature);

} // namespace zent
