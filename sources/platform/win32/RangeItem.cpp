// Sliders, scroll bars and spins, which differ in the numbers of their messages.

#include "platform/win32/Item.h"

#include <commctrl.h>

namespace zent::platform::win32 {

namespace {

class Slider final : public Item, public RangeItem {
public:
    using Item::Item;

    void setRange(std::int32_t lower, std::int32_t upper) override {
        send(TBM_SETRANGEMIN, FALSE, lower);
        send(TBM_SETRANGEMAX, TRUE, upper);
    }
    std::int32_t getPosition() const override {
        return static_cast<std::int32_t>(send(TBM_GETPOS));
    }
    void setPosition(std::int32_t position) override { send(TBM_SETPOS, TRUE, position); }
};

class Spin final : public Item, public RangeItem {
public:
    using Item::Item;

    void setRange(std::int32_t lower, std::int32_t upper) override {
        send(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
    }
    std::int32_t getPosition() const override {
        return static_cast<std::int32_t>(send(UDM_GETPOS32));
    }
    void setPosition(std::int32_t position) override { send(UDM_SETPOS32, 0, position); }
};

class ScrollBar final : public Item, public RangeItem {
public:
    using Item::Item;

    void setRange(std::int32_t lower, std::int32_t upper) override {
        SetScrollRange(window(), SB_CTL, lower, upper, TRUE);
    }
    std::int32_t getPosition() const override { return GetScrollPos(window(), SB_CTL); }
    void setPosition(std::int32_t position) override {
        SetScrollPos(window(), SB_CTL, position, TRUE);
    }
};

} // namespace

std::unique_ptr<Item> makeRange(Dialog& dialog, HWND window) {
    switch (getItemKind(window)) {
    case ItemKind::slider:
        return std::make_unique<Slider>(dialog, window);
    case ItemKind::spin:
        return std::make_unique<Spin>(dialog, window);
    default:
        return std::make_unique<ScrollBar>(dialog, window);
    }
}

} // namespace zent::platform::win32
