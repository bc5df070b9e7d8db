#pragma once

#include <span>

#include "platform/Dialog.h"

namespace zent {

/// What a dialog is fitted to, in pixels.
struct DialogExtent {
    /// On the screen, with the frame.
    platform::Rectangle window;
    /// Begins at (0, 0).
    platform::Rectangle client;
    /// Is left free on each side of the content.
    platform::Rectangle margin;
    /// How far below the top of its item a group box or other marked button is drawn.
    std::int32_t markedInset = 0;
};

/// How a dialog fits its items with the margin left around them.
struct DialogFit {
    /// All items move by this.
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

/// Gives a dialog's window the size that its items need. Templates are translated and merged, so
/// their own size is never right for all.
void fitDialogToContent(platform::Dialog& dialog, std::uint16_t firstItem);

/// The place of a popup whose right edge is wanted at `right` and whose top at `top`: it rises if
/// it would pass the bottom of the work area.
platform::Rectangle placePopup(const platform::Rectangle& window, std::int32_t right,
                               std::int32_t top, const platform::Rectangle& workArea);

} // namespace zent
