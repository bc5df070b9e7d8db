#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A label that shows and hides.
class StaticUIControl : public UIControl {
public:
    explicit StaticUIControl(std::uint16_t item) : UIControl(item) {}
};

} // namespace zent
