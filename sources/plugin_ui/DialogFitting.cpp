#include "plugin_ui/DialogFitting.h"

#include <algorithm>

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

namespace {

using platform::Rectangle;
using Item = platform::WindowSystem::Item;

/// Dialog units.
constexpr std::int32_t marginUnits = 7;
constexpr std::int32_t markedInsetUnits = 3;

Rectangle boundingBox(std::span<const Item> items, std::uint16_t firstItem,
                      const DialogExtent& extent) {
    const auto first = std::ranges::find(items, firstItem, &Item::id);
    Rectangle box = first != items.end() ? first->place : extent.client;
    for (const Item& item : items) {
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

DialogExtent measureDialog(platform::WindowSystem& system, platform::WindowHandle dialog) {
    const Rectangle margin{marginUnits, marginUnits, marginUnits, marginUnits};
    const Rectangle inset{0, 0, 0, markedInsetUnits};
    return {system.getWindowRectangle(dialog), system.getClientRectangle(dialog),
            system.mapDialogUnits(dialog, margin), system.mapDialogUnits(dialog, inset).bottom};
}

} // namespace

DialogFit fitDialog(std::span<const Item> items, std::uint16_t firstItem,
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

void fitDialogToContent(platform::WindowHandle dialog, std::uint16_t firstItem) {
    platform::WindowSystem& system = windowSystem();
    const std::vector<Item> items = system.getItems(dialog);
    const DialogFit fit = fitDialog(items, firstItem, measureDialog(system, dialog));
    for (std::size_t i = 0; fit.movesItems() && i < items.size(); ++i) {
        system.moveItem(dialog, i, moved(items[i].place, fit.moveX, fit.moveY));
    }
    system.moveWindow(dialog, fit.window);
}

Rectangle placePopup(const Rectangle& window, std::int32_t right, std::int32_t top,
                     const Rectangle& workArea) {
    const std::int32_t rises = std::max(top + window.height() - workArea.bottom, 0);
    return moved(window, right - window.right, top - rises - window.top);
}

} // namespace zent
