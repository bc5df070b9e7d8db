#pragma once

#include "plugin_ui/Controls/ItemListUIControl.h"

namespace zent {

/// A drop-down list, whose text the user may be free to change.
class ComboBoxUIControl : public ItemListUIControl {
public:
    /// With `notifyAlways` observers hear of a choice even if it is the one that was there.
    explicit ComboBoxUIControl(std::uint16_t combo, std::uint16_t label = 0,
                               bool notifyAlways = false)
        : ItemListUIControl(combo, label), m_notifyAlways(notifyAlways) {}

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

private:
    bool m_notifyAlways;
};

} // namespace zent
