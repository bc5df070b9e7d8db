#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A button that the user presses. It stays usable while the dialog is locked, for what it opens
/// can be read.
class PushButtonUIControl : public UIControl {
public:
    /// `toolTipId` is a resource string, 0 for none.
    explicit PushButtonUIControl(std::uint16_t item, std::uint32_t toolTipId = 0);

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;
    bool onLock(const DialogMessage& message, std::intptr_t& result) override;
};

} // namespace zent
