#pragma once

#include <span>
#include <variant>

#include "plugin_ui/Features/CheckBoxUIFeature.h"
#include "plugin_ui/Features/KeyWordListUIFeature.h"
#include "plugin_ui/Features/NumberCheckBoxUIFeature.h"
#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent {

/// A feature of which there is nothing to say but its number, its items and its role. Pages and
/// dialogs list theirs in tables; a class of its own is for a feature that behaves in its own way.
using FeatureRow = std::variant<KeyWordListRow, CheckBoxRow, NumberRow, TextEntryRow>;

/// Gives a component a child for each row, in their order, which works on the component's level of
/// the ticket.
void addFeatures(ConfigurableUIComponent& parent, std::span<const FeatureRow> rows);

} // namespace zent
