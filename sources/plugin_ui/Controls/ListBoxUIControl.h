#pragma once

#include "plugin_ui/Controls/ItemListUIControl.h"

namespace zent {

/// A list that is always open.
class ListBoxUIControl : public ItemListUIControl {
public:
    explicit ListBoxUIControl(std::uint16_t list, std::uint16_t label = 0)
        : ItemListUIControl(list, label) {}

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;
};

} // namespace zent
