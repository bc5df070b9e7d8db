#include "plugin_ui/DialogFitting.h"

#include <algorithm>

namespace zent {

namespace {

using platform::Rectangle;

/// Both are in dialog units, which grow with the font.
constexpr std::int32_t marginUnits = 7;
constexpr std::int32_t markedInsetUnits = 3;

Rectangle boundingBox(std::span<const FittedItem> items, std::uint16_t firstItem,
                      const DialogExtent& extent) {
    const auto first = std::ranges::find(items, firstItem, &FittedItem::id);
    Rectangle box = first != items.end() ? first->place : extent.client;
    for (const FittedItem& item : items) {
        const std::int32_t inset = item.isMarkedButton ? extent.markedInset : 0;
        box.left = std::min(box.left, item.place.left);
        box.top = std::min(box.top, item.place.top + inset);
        box.right = std::max(box.right, item.place.right);
        box.bottom = std::max(box.bottom, item.place.bottom);
    }
    return box;
}

Rectangle moved(const Rectangle& place, std::int32_t x, std::int32_t y) {
    return {place.left + x, place.top + y, place.right + x, place.bottom + y};
}

DialogExtent measureDialog(const platform::Dialog& dialog) {
    const Rectangle margin{marginUnits, marginUnits, marginUnits, marginUnits};
    const Rectangle inset{0, 0, 0, markedInsetUnits};
    return {dialog.getWindowRectangle(), dialog.getClientRectangle(), dialog.mapDialogUnits(margin),
            dialog.mapDialogUnits(inset).bottom};
}

} // namespace

// The content is moved and not only the frame: a merged page may begin anywhere.
DialogFit fitDialog(std::span<const FittedItem> items, std::uint16_t firstItem,
                    const DialogExtent& extent) {
    const auto& [window, client, margin, inset] = extent;
    const Rectangle found = boundingBox(items, firstItem, extent);
    DialogFit fit;
    fit.moveX = -(found.left - client.left - margin.left);
    fit.moveY = -(found.top - client.top - margin.top);
    const Rectangle box = moved(found, fit.moveX, fit.moveY);
    fit.window = window;
    fit.window.right -= client.right - box.right - margin.right;
    fit.window.bottom -= client.bottom - box.bottom - margin.bottom;
    return fit;
}

void fitDialogToContent(platform::Dialog& dialog, std::uint16_t firstItem) {
    const std::vector<platform::DialogItem*> items = dialog.getItems();
    std::vector<FittedItem> fitted;
    fitted.reserve(items.size());
    for (const platform::DialogItem* const item : items) {
        fitted.push_back({item->getId(), item->getPlace(), item->isMarkedButton()});
    }
    const DialogFit fit = fitDialog(fitted, firstItem, measureDialog(dialog));
    for (std::size_t i = 0; fit.movesItems() && i < items.size(); ++i) {
        items[i]->moveTo(moved(fitted[i].place, fit.moveX, fit.moveY));
    }
    dialog.moveTo(fit.window);
}

Rectangle placePopup(const Rectangle& window, std::int32_t right, std::int32_t top,
                     const Rectangle& workArea) {
    const std::int32_t rises = std::max(top + window.height() - workArea.bottom, 0);
    return moved(window, right - window.right, top - rises - window.top);
}

} // namespace zent
