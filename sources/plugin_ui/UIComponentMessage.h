#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

class FeatureSettings;

/// A message along the components of a dialog, beside the window's own messages: it reaches them
/// before there is a window, and reaches dialogs that are registered but no part of the tree.
struct UIComponentMessage {
    /// Sets the feature to its printer default in the settings that lParam points to.
    static constexpr std::uint32_t UIMsgSetPrinterDefault = 1;
    /// Names the item that stands for the printer default by the string of the number wParam.
    static constexpr std::uint32_t UIMsgSetDefaultText = 2;

    std::uint32_t kind = 0;
    std::uint32_t wParam = 0;
    FeatureSettings* lParam = nullptr;

    /// Is for the trace, where both kinds have always had the name of the first.
    CXString getDebugText() const;
};

} // namespace zent
