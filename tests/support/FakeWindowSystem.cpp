#include "support/FakeWindowSystem.h"

#include <algorithm>
#include <stdexcept>

#include "ocore/Text/CXString.h"
#include "platform/DialogTemplate.h"

namespace zent::test {

namespace {

using platform::DialogTemplate;
using platform::Rectangle;
namespace event = platform::event;
namespace notification = platform::notification;

constexpr std::int32_t pixelsPerUnit = 2;

std::u16string textOf(const DialogTemplate::Name& name) {
    const auto* const number = std::get_if<std::uint16_t>(&name);
    return number == nullptr ? std::get<std::u16string>(name)
                             : std::u16string(CXString::Format(u"#%d", *number).view());
}

Rectangle pixelsOf(const DialogTemplate::Place& place) {
    const auto pixels = [](std::int32_t units) { return units * pixelsPerUnit; };
    return {pixels(place.x), pixels(place.y), pixels(place.x + place.width),
            pixels(place.y + place.height)};
}

constexpr std::uint32_t buttonType(std::uint32_t style) { return style & 0xF; }

bool isButton(const FakeItem& item) { return item.windowClass == u"#128"; }

/// Sets the mark of an automatic check box or radio button, as a window system does.
bool isCheckBox(const FakeItem& item) {
    return isButton(item) && (buttonType(item.style) == 3 || buttonType(item.style) == 6);
}
bool isRadioButton(const FakeItem& item) { return isButton(item) && buttonType(item.style) == 9; }

} // namespace

class FakeDialog final : public platform::Dialog {
public:
    FakeDialog(FakeWindowSystem& owner, const DialogTemplate& source,
               platform::DialogProcedure& procedure)
        : system(owner), caption(source.title), m_procedure(procedure) {
        const Rectangle client = pixelsOf(source.place);
        m_window = {100, 50, 110 + client.width(), 80 + client.height()};
        for (const DialogTemplate::Item& item : source.items) {
            addItem(item);
        }
    }

    platform::WindowHandle getHandle() override { return this; }
    void end(std::intptr_t ending) override {
        isEnded = true;
        value = ending;
    }
    void destroy() override {
        send(event::destroy, 0, 0);
        std::erase_if(system.m_dialogs, [&](const auto& known) { return known.get() == this; });
    }
    std::intptr_t send(std::uint32_t message, std::uintptr_t wParam,
                       std::intptr_t lParam) override {
        std::intptr_t result = 0;
        m_procedure.processEvent(*this, message, wParam, lParam, result);
        return result;
    }
    void command(std::uint16_t id, std::uint32_t code) { send(event::command, id | code << 16, 0); }
    void reportChanged() override { ++system.m_changesReported; }
    void setCaption(std::u16string_view text) override { caption = text; }
    bool isVisible() const override { return true; }
    Rectangle getWindowRectangle() const override { return m_window; }
    Rectangle getClientRectangle() const override {
        return {0, 0, m_window.width() - 10, m_window.height() - 30};
    }
    void moveTo(const Rectangle& place) override { m_window = place; }
    Rectangle getWorkArea() const override { return {0, 0, 1024, 768}; }
    Rectangle mapDialogUnits(const Rectangle& units) const override {
        return {units.left * pixelsPerUnit, units.top * pixelsPerUnit, units.right * pixelsPerUnit,
                units.bottom * pixelsPerUnit};
    }
    std::vector<platform::DialogItem*> getItems() const override {
        std::vector<platform::DialogItem*> result;
        for (const auto& item : items) {
            if (item->isThere()) {
                result.push_back(item.get());
            }
        }
        return result;
    }
    FakeItem* findItem(std::uint16_t id) const override {
        const auto found = std::ranges::find_if(
            items, [&](const auto& item) { return item->isThere() && item->id == id; });
        return found != items.end() ? found->get() : nullptr;
    }

    FakeWindowSystem& system;
    std::u16string caption;
    std::vector<std::unique_ptr<FakeItem>> items;
    std::uint16_t defaultButton = 0;
    bool isEnded = false;
    std::intptr_t value = 0;

private:
    void addItem(const DialogTemplate::Item& source) {
        constexpr std::uint32_t visible = 0x10000000;
        constexpr std::uint32_t disabled = 0x08000000;
        auto made = std::make_unique<FakeItem>();
        made->windowClass = textOf(source.windowClass);
        made->style = source.style;
        made->place = pixelsOf(source.place);
        made->id = source.id;
        made->shown = (source.style & visible) != 0;
        made->enabled = (source.style & disabled) == 0;
        made->text = textOf(source.title);
        made->dialog = this;
        items.push_back(std::move(made));
    }

    platform::DialogProcedure& m_procedure;
    Rectangle m_window;
};

// ---- Items --------------------------------------------------------------------------------------

void FakeItem::setText(std::u16string_view newText) {
    const bool isEdit = windowClass == u"#129" || windowClass == u"Edit";
    const bool isNew = text != newText;
    text = newText;
    if (isEdit && isNew) {
        dialog->command(id, notification::editChanged);
    }
}
bool FakeItem::isMarkedButton() const { return isButton(*this) && (style & 7) != 0; }
void FakeItem::makeDefault() { dialog->defaultButton = id; }
bool FakeItem::setFilter(const platform::CharacterFilter& newFilter) {
    filter = newFilter;
    return dialog->system.m_canFilter;
}
void FakeItem::clear() {
    list.clear();
    selected = -1;
}
std::int32_t FakeItem::add(std::u16string_view entry, std::uintptr_t value, std::int32_t index) {
    const std::int32_t at = index < 0 ? static_cast<std::int32_t>(list.size()) : index;
    list.insert(list.begin() + at, {std::u16string(entry), value});
    return at;
}
void FakeItem::setEntryText(std::int32_t index, std::u16string_view entry) {
    list.at(static_cast<std::size_t>(index)).first = entry;
}
void FakeItem::setRange(std::int32_t newLower, std::int32_t newUpper) {
    lower = newLower;
    upper = newUpper;
}
void FakeItem::setBitmap(std::uint32_t newBitmap, bool clearsGround) {
    bitmap = newBitmap;
    isGroundCleared = clearsGround;
}

// ---- Dialogs ------------------------------------------------------------------------------------

FakeWindowSystem::FakeWindowSystem() = default;
FakeWindowSystem::~FakeWindowSystem() = default;

platform::Dialog* FakeWindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                                   const platform::ResourceModule& /*resources*/,
                                                   Window /*owner*/,
                                                   platform::DialogProcedure& procedure) {
    const auto parsed = DialogTemplate::read(dialogTemplate);
    if (!parsed) {
        throw std::invalid_argument("broken template");
    }
    m_dialogs.push_back(std::make_unique<FakeDialog>(*this, *parsed, procedure));
    FakeDialog& dialog = *m_dialogs.back();
    dialog.send(event::initDialog, 0, 0);
    return &dialog;
}

std::intptr_t FakeWindowSystem::runModal(std::span<const std::byte> dialogTemplate,
                                         const platform::ResourceModule& resources, Window owner,
                                         platform::DialogProcedure& procedure) {
    const auto acts = m_acts.empty() ? [](Window) {} : m_acts.front();
    m_acts.erase(m_acts.begin(), m_acts.begin() + (m_acts.empty() ? 0 : 1));
    Window const window = createModeless(dialogTemplate, resources, owner, procedure)->getHandle();
    acts(window);
    FakeDialog& dialog = *findDialog(window);
    const std::intptr_t value = dialog.isEnded ? dialog.value : 0;
    dialog.destroy();
    return value;
}

FakeDialog* FakeWindowSystem::findDialog(Window window) {
    const auto found =
        std::ranges::find(m_dialogs, window, [](const auto& dialog) { return dialog.get(); });
    return found != m_dialogs.end() ? found->get() : nullptr;
}
platform::Dialog& FakeWindowSystem::getDialog(Window window) {
    FakeDialog* const known = findDialog(window);
    return known != nullptr ? *known : platform::none<platform::Dialog>();
}
std::u16string FakeWindowSystem::getCaption(Window window) {
    const FakeDialog* const known = findDialog(window);
    return known != nullptr ? known->caption : std::u16string();
}
std::uint16_t FakeWindowSystem::defaultButton(Window dialog) {
    return findDialog(dialog)->defaultButton;
}

FakeItem& FakeWindowSystem::item(Window dialog, Id id) {
    FakeDialog* const known = findDialog(dialog);
    FakeItem* const found = known != nullptr ? known->findItem(id) : nullptr;
    m_nothing = std::make_unique<FakeItem>();
    return found != nullptr ? *found : *m_nothing;
}

FakeItem* FakeWindowSystem::findUsable(Window dialog, Id id) {
    FakeItem& found = item(dialog, id);
    return found.isThere() && found.shown && found.enabled ? &found : nullptr;
}

std::vector<std::uint16_t> FakeWindowSystem::shownItems(Window dialog) {
    std::vector<std::uint16_t> shown;
    for (const auto* const item : findDialog(dialog)->getItems()) {
        if (item->isShown()) {
            shown.push_back(item->getId());
        }
    }
    return shown;
}

// ---- The user's acts ----------------------------------------------------------------------------

void FakeWindowSystem::onceOpen(std::function<void(Window)> acts) {
    m_acts.push_back(std::move(acts));
}

void FakeWindowSystem::type(Window dialog, Id id, std::u16string_view text) {
    for (const char16_t character : text) {
        FakeItem* const edit = findUsable(dialog, id);
        const auto end = edit != nullptr ? static_cast<std::int32_t>(edit->text.size()) : 0;
        if (edit != nullptr && (!edit->filter || edit->filter(edit->text, end, end, character))) {
            edit->setText(edit->text + character);
        }
    }
}

void FakeWindowSystem::clear(Window dialog, Id id) {
    if (FakeItem* const edit = findUsable(dialog, id)) {
        edit->setText(u"");
    }
}

void FakeWindowSystem::leave(Window dialog, Id id) {
    findDialog(dialog)->command(id, notification::editLeft);
}

void FakeWindowSystem::click(Window dialog, Id id) {
    FakeItem* const button = findUsable(dialog, id);
    if (button == nullptr) {
        return;
    }
    if (isCheckBox(*button)) {
        button->checked = !button->checked;
    } else if (isRadioButton(*button)) {
        for (const auto& other : button->dialog->items) {
            other->checked = other.get() == button || (other->checked && !isRadioButton(*other));
        }
    }
    button->dialog->command(id, notification::clicked);
}

void FakeWindowSystem::choose(Window dialog, Id id, std::int32_t index) {
    if (FakeItem* const list = findUsable(dialog, id)) {
        list->selected = index;
        list->dialog->command(id, notification::comboSelected);
    }
}

std::intptr_t FakeWindowSystem::spin(Window dialog, Id id, std::int32_t delta) {
    platform::Notification step;
    step.item = id;
    step.code = notification::spinStep;
    step.delta = delta;
    return getDialog(dialog).send(event::notify, id, reinterpret_cast<std::intptr_t>(&step));
}

void FakeWindowSystem::slide(Window dialog, Id id, std::int32_t position) {
    item(dialog, id).position = position;
    getDialog(dialog).send(event::horizontalScroll, static_cast<std::uintptr_t>(position) << 16,
                           id);
}

} // namespace zent::test
