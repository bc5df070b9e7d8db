#include "platform/win32/Dialog.h"
#include "platform/win32/Item.h"

namespace zent::platform::win32 {

namespace {

LONG getType(HWND button) { return GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK; }

class AnyButton final : public Item, public ButtonItem {
public:
    using Item::Item;

    bool isMarkedButton() const override {
        constexpr LONG lowestBits = 7;
        return (GetWindowLongW(window(), GWL_STYLE) & lowestBits) != 0;
    }
    bool isChecked() const override { return send(BM_GETCHECK) == BST_CHECKED; }
    void setChecked(bool isChecked) override {
        send(BM_SETCHECK, isChecked ? BST_CHECKED : BST_UNCHECKED);
    }
    bool isDefault() const override;
    void makeDefault() override;
};

/// Whether the button is the default one. The styles of buttons can't tell, since they change with
/// the focus.
bool AnyButton::isDefault() const {
    const LRESULT answer = SendMessageW(dialog().window(), DM_GETDEFID, 0, 0);
    return isThere() && HIWORD(answer) == DC_HASDEFID && LOWORD(answer) == getId();
}

void AnyButton::makeDefault() {
    if (getType(window()) > BS_DEFPUSHBUTTON) {
        return;
    }
    for (const auto& other : dialog().items()) {
        if (other->kind() == ItemKind::button && getType(other->window()) == BS_DEFPUSHBUTTON) {
            SendMessageW(other->window(), BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
        }
    }
    SendMessageW(window(), BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    SendMessageW(dialog().window(), DM_SETDEFID, getId(), 0);
}

} // namespace

std::unique_ptr<Item> makeButton(Dialog& dialog, HWND window) {
    return std::make_unique<AnyButton>(dialog, window);
}

} // namespace zent::platform::win32
