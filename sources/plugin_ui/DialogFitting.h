#pragma once

#include <span>

#include "platform/Dialog.h"

namespace zent {

/// What a dialog is fitted to, in pixels.
struct DialogExtent {
    platform::Rectangle window;   // on the screen, frame included
    platform::Rectangle client;   // from (0, 0)
    platform::Rectangle margin;   // to each side of the content
    std::int32_t markedInset = 0; // how far below its top a marked button begins
};

/// How a dialog fits its items with the margin left around them.
struct DialogFit {
    /// By which all items move.
    std::int32_t moveX = 0;
    std::int32_t moveY = 0;
    platform::Rectangle window;

    bool movesItems() const { return moveX != 0 || moveY != 0; }
};

/// An item as it stands in a dialog.
struct FittedItem {
    std::uint16_t id = 0;
    platform::Rectangle place;
    bool isMarkedButton = false;
};

/// Items count whether they are shown or not. The content begins as the item `firstItem`, or as the
/// dialog's inner area where there is no such item.
DialogFit fitDialog(std::span<const FittedItem> items, std::uint16_t firstItem,
                    const DialogExtent& extent);

/// Fits a dialog's window to its items.
void fitDialogToContent(platform::Dialog& dialog, std::uint16_t firstItem);

/// The place of a popup whose right edge is wanted at `right` and whose top at `top`: it rises if
/// it would pass the bottom of the work area.
platform::Rectangle placePopup(const platform::Rectangle& window, std::int32_t right,
                               std::int32_t top, const platform::Rectangle& workArea);

} // namespace zent
