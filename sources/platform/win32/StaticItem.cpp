#include "platform/win32/Dialog.h"
#include "platform/win32/Item.h"
#include "platform/win32/Picture.h"

namespace zent::platform::win32 {

namespace {

class StaticItem final : public Item, public PictureItem {
public:
    using Item::Item;

    void setBitmap(std::uint32_t bitmap, bool clearsGround) override {
        if (Picture* const picture = findOrAttachPicture()) {
            picture->setBitmap(dialog().resources(), bitmap, clearsGround);
        }
    }

    void watchMouse() override {
        if (Picture* const picture = findOrAttachPicture()) {
            picture->watchMouse([this](UINT message, LPARAM place) {
                dialog().tellMouse(message, getId(), place);
            });
        }
    }

private:
    /// The picture of the item, which is attached at the first need; null if the system refuses.
    Picture* findOrAttachPicture() const {
        if (SubclassedItem::of(window()) == nullptr) {
            SubclassedItem::attach(std::make_unique<Picture>(window()));
        }
        return static_cast<Picture*>(SubclassedItem::of(window()));
    }
};

} // namespace

std::unique_ptr<Item> makeLabel(Dialog& dialog, HWND window) {
    return std::make_unique<StaticItem>(dialog, window);
}

} // namespace zent::platform::win32
