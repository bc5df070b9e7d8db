#include "platform/win32/Dialog.h"
#include "platform/win32/EditFilter.h"
#include "platform/win32/Item.h"
#include "platform/win32/WindowText.h"

namespace zent::platform::win32 {

namespace {

class EditItem final : public Item, public TextItem {
public:
    using Item::Item;

    void setText(std::u16string_view text) override;
    void setLimit(std::uint32_t units) override;
    bool setFilter(const CharacterFilter& filter) override;
    void selectText(std::int32_t start, std::int32_t end) override {
        SendMessageW(window(), EM_SETSEL, static_cast<WPARAM>(start), end);
    }
    void setTransparent() override {
        dialog().setTransparent(window());
        InvalidateRect(window(), nullptr, TRUE);
    }

private:
    EditFilter* findOrAttachFilter() const;
};

/// Sets the text and reports the change. A window of several lines doesn't report it itself, and
/// one of a single line reports an equal text too.
void EditItem::setText(std::u16string_view text) {
    const auto kept = dialog().shared_from_this(); // the event may end the dialog
    const bool isNewText = isThere() && getText() != text;
    Item::setText(text);
    if (isNewText) {
        kept->command(getId(), notification::editChanged);
    }
}

/// The filter of the window, which is attached at the first need; null if the system refuses.
EditFilter* EditItem::findOrAttachFilter() const {
    if (SubclassedItem::of(window()) == nullptr) {
        SubclassedItem::attach(std::make_unique<EditFilter>(window()));
    }
    return static_cast<EditFilter*>(SubclassedItem::of(window()));
}

void EditItem::setLimit(std::uint32_t units) {
    SendMessageW(window(), EM_SETLIMITTEXT, units, 0);
    findOrAttachFilter(); // by itself the item would cut a character of two units in half
    setProperty(u"SC_MAX", units);
}

bool EditItem::setFilter(const CharacterFilter& filter) {
    EditFilter* const present = findOrAttachFilter();
    if (present != nullptr) {
        present->setFilter(filter);
    }
    return present != nullptr;
}

} // namespace

std::unique_ptr<Item> makeEdit(Dialog& dialog, HWND window) {
    return std::make_unique<EditItem>(dialog, window);
}

} // namespace zent::platform::win32
