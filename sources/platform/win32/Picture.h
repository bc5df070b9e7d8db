#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "platform/ResourceModule.h"
#include "platform/win32/MaskedBitmap.h"
#include "platform/win32/SubclassedItem.h"

namespace zent::platform::win32 {

/// Draws a bitmap over a static item, on what shines through from the page.
class Picture final : public SubclassedItem {
public:
    explicit Picture(HWND item) : SubclassedItem(item) {}

    /// Sets the bitmap resource, 0 for none. Without `clearsGround` it is drawn over what is there.
    void setBitmap(const ResourceModule& resources, std::uint32_t id, bool clearsGround);

    /// Sets the function that hears of the mouse on the item: it gets the message and the place in
    /// the item.
    void watchMouse(std::function<void(UINT message, LPARAM place)> tell) {
        m_tellMouse = std::move(tell);
    }

protected:
    LRESULT process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    MaskedBitmap m_bitmap{nullptr};
    std::function<void(UINT, LPARAM)> m_tellMouse;
};

} // namespace zent::platform::win32
