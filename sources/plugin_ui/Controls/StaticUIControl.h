#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A label, which only shows and hides with what it belongs to.
class StaticUIControl : public UIControl {
public:
    explicit StaticUIControl(std::uint16_t item) : UIControl(item) {}
};

} // namespace zent
