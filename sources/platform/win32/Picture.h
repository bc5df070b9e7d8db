#pragma once

#include <cstdint>

#include "platform/ResourceModule.h"
#include "platform/win32/MaskedBitmap.h"
#include "platform/win32/SubclassedItem.h"

namespace zent::platform::win32 {

/// Draws a bitmap over a static item, on what shines through from the page.
class Picture final : public SubclassedItem {
public:
    explicit Picture(HWND item) : SubclassedItem(item) {}

    /// A bitmap resource, 0 for none. Without `clearsGround` it is drawn over what is there.
    void setBitmap(const ResourceModule& resources, std::uint32_t id, bool clearsGround);

protected:
    LRESULT process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    MaskedBitmap m_bitmap{nullptr};
};

} // namespace zent::platform::win32
