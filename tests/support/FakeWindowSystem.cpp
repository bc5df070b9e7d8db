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

std::u16string textOf(const DialogTemplate::Name& name, std::u16string_view mark = u"#") {
    const auto* const number = std::get_if<std::uint16_t>(&name);
    return number == nullptr ? std::get<std::u16string>(name)
                             : std::u16string(CXString::Format(u"%s%d", mark, *number).view());
}

Rectangle pixelsOf(const DialogTemplate::Place& place) {
    const auto pixels = [](std::int32_t units) { return units * pixelsPerUnit; };
    return {pixels(place.x), pixels(place.y), pixels(place.x + place.width),
            pixels(place.y + place.height)};
}

constexpr std::uint32_t buttonType(std::uint32_t style) { return style & 0xF; }

bool isButton(const FakeWindowSystem::FakeItem& item) { return item.windowClass == u"#128"; }

/// Of automatic check boxes and radio buttons the window system sets the mark.
bool isCheckBox(const FakeWindowSystem::FakeItem& item) {
    return isButton(item) && (buttonType(item.style) == 3 || buttonType(item.style) == 6);
}
bool isRadioButton(const FakeWindowSystem::FakeItem& item) {
    return isButton(item) && buttonType(item.style) == 9;
}

} // namespace

struct FakeWindowSystem::Dialog {
    platform::DialogProcedure& procedure;
    std::u16string caption;
    Rectangle window;
    std::vector<FakeItem> items;
    std::uint16_t defaultButton = 0;
    bool isEnded = false;
    std::intptr_t value = 0;
};

FakeWindowSystem::FakeWindowSystem() = default;
FakeWindowSystem::~FakeWindowSystem() = default;

FakeWindowSystem::Dialog* FakeWindowSystem::findDialog(Window window) {
    const auto found =
        std::ranges::find(m_dialogs, window, [](const auto& dialog) { return dialog.get(); });
    return found != m_dialogs.end() ? found->get() : nullptr;
}

FakeWindowSystem::FakeItem* FakeWindowSystem::find(Window dialog, Id id) {
    Dialog* const known = findDialog(dialog);
    if (known == nullptr) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(
        known->items, [&](const FakeItem& it) { return it.isThere && it.id == id; });
    return found != known->items.end() ? &*found : nullptr;
}

FakeWindowSystem::FakeItem* FakeWindowSystem::findUsable(Window dialog, Id id) {
    FakeItem* const found = find(dialog, id);
    return found != nullptr && found->isShown && found->isEnabled ? found : nullptr;
}

FakeWindowSystem::FakeItem& FakeWindowSystem::at(Window dialog, Id id) {
    FakeItem* const found = find(dialog, id);
    m_nothing = FakeItem();
    m_nothing.isEnabled = false;
    return found != nullptr ? *found : m_nothing;
}

std::pair<std::u16string, std::uintptr_t>& FakeWindowSystem::entry(Window dialog, Id id,
                                                                   std::int32_t index) {
    return at(dialog, id).list.at(static_cast<std::size_t>(index));
}

std::vector<std::uint16_t> FakeWindowSystem::shownItems(Window dialog) {
    std::vector<std::uint16_t> shown;
    for (const FakeItem& item : findDialog(dialog)->items) {
        if (item.isThere && item.isShown) {
            shown.push_back(item.id);
        }
    }
    return shown;
}

// ---- The user's acts ----------------------------------------------------------------------------

void FakeWindowSystem::onceOpen(std::function<void(Window)> acts) {
    m_acts.push_back(std::move(acts));
}

void FakeWindowSystem::command(Window dialog, Id id, std::uint32_t notification) {
    send(dialog, event::command, id | notification << 16, 0);
}

void FakeWindowSystem::changeText(Window dialog, FakeItem& item, std::u16string_view text) {
    if (item.text == text) {
        return;
    }
    item.text = text;
    if (item.windowClass == u"#129" || item.windowClass == u"Edit") {
        command(dialog, item.id, notification::editChanged);
    }
}

void FakeWindowSystem::type(Window dialog, Id id, std::u16string_view text) {
    for (const char16_t character : text) {
        FakeItem* const edit = findUsable(dialog, id);
        const auto end = edit != nullptr ? static_cast<std::int32_t>(edit->text.size()) : 0;
        if (edit != nullptr && (!edit->filter || edit->filter(edit->text, end, end, character))) {
            changeText(dialog, *edit, edit->text + character);
        }
    }
}

void FakeWindowSystem::clear(Window dialog, Id id) {
    if (FakeItem* const edit = findUsable(dialog, id)) {
        changeText(dialog, *edit, u"");
    }
}

void FakeWindowSystem::leave(Window dialog, Id id) { command(dialog, id, notification::editLeft); }

void FakeWindowSystem::click(Window dialog, Id id) {
    FakeItem* const button = findUsable(dialog, id);
    if (button == nullptr) {
        return;
    }
    if (isCheckBox(*button)) {
        button->isChecked = !button->isChecked;
    } else if (isRadioButton(*button)) {
        for (FakeItem& other : findDialog(dialog)->items) {
            other.isChecked = &other == button || (other.isChecked && !isRadioButton(other));
        }
    }
    command(dialog, id, notification::clicked);
}

void FakeWindowSystem::choose(Window dialog, Id id, std::int32_t index) {
    if (FakeItem* const list = findUsable(dialog, id)) {
        list->selected = index;
        command(dialog, id, notification::comboSelected);
    }
}

std::intptr_t FakeWindowSystem::spin(Window dialog, Id id, std::int32_t delta) {
    platform::Notification step;
    step.item = id;
    step.code = notification::spinStep;
    step.delta = delta;
    return send(dialog, event::notify, id, reinterpret_cast<std::intptr_t>(&step));
}

void FakeWindowSystem::slide(Window dialog, Id id, std::int32_t position) {
    setPosition(dialog, id, position);
    send(dialog, event::horizontalScroll, static_cast<std::uintptr_t>(position) << 16, id);
}

// ---- Dialogs ------------------------------------------------------------------------------------

FakeWindowSystem::Window
FakeWindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                 const platform::ResourceModule& /*resources*/, Window /*owner*/,
                                 platform::DialogProcedure& procedure) {
    constexpr std::uint32_t visible = 0x10000000;
    constexpr std::uint32_t disabled = 0x08000000;
    const auto parsed = DialogTemplate::read(dialogTemplate);
    if (!parsed) {
        throw std::invalid_argument("broken template");
    }
    const Rectangle client = pixelsOf(parsed->place);
    auto dialog = std::make_unique<Dialog>(Dialog{
        procedure, parsed->title, {100, 50, 110 + client.width(), 80 + client.height()}, {}, 0});
    for (const DialogTemplate::Item& item : parsed->items) {
        FakeItem made;
        made.windowClass = textOf(item.windowClass);
        made.style = item.style;
        made.place = pixelsOf(item.place);
        made.id = item.id;
        made.isShown = (item.style & visible) != 0;
        made.isEnabled = (item.style & disabled) == 0;
        made.text = textOf(item.title);
        dialog->items.push_back(std::move(made));
    }
    Window const window = dialog.get();
    m_dialogs.push_back(std::move(dialog));
    send(window, event::initDialog, 0, 0);
    return window;
}

std::intptr_t FakeWindowSystem::runModal(std::span<const std::byte> dialogTemplate,
                                         const platform::ResourceModule& resources, Window owner,
                                         platform::DialogProcedure& procedure) {
    const auto acts = m_acts.empty() ? [](Window) {} : m_acts.front();
    m_acts.erase(m_acts.begin(), m_acts.begin() + (m_acts.empty() ? 0 : 1));
    Window const window = createModeless(dialogTemplate, resources, owner, procedure);
    acts(window);
    const Dialog& dialog = *findDialog(window);
    const std::intptr_t value = dialog.isEnded ? dialog.value : 0;
    destroyDialog(window);
    return value;
}

void FakeWindowSystem::endDialog(Window dialog, std::intptr_t value) {
    findDialog(dialog)->isEnded = true;
    findDialog(dialog)->value = value;
}

void FakeWindowSystem::destroyDialog(Window dialog) {
    send(dialog, event::destroy, 0, 0);
    std::erase_if(m_dialogs, [&](const auto& known) { return known.get() == dialog; });
}

std::intptr_t FakeWindowSystem::send(Window dialog, std::uint32_t message, std::uintptr_t wParam,
                                     std::intptr_t lParam) {
    Dialog* const known = findDialog(dialog);
    std::intptr_t result = 0;
    if (known != nullptr) {
        known->procedure.processEvent(dialog, message, wParam, lParam, result);
    }
    return result;
}

void FakeWindowSystem::setCaption(Window dialog, std::u16string_view text) {
    findDialog(dialog)->caption = text;
}
std::u16string FakeWindowSystem::getCaption(Window window) {
    const Dialog* const known = findDialog(window);
    return known != nullptr ? known->caption : std::u16string();
}
Rectangle FakeWindowSystem::getWindowRectangle(Window dialog) { return findDialog(dialog)->window; }
Rectangle FakeWindowSystem::getClientRectangle(Window dialog) {
    const Rectangle window = getWindowRectangle(dialog);
    return {0, 0, window.width() - 10, window.height() - 30};
}
void FakeWindowSystem::moveWindow(Window dialog, const Rectangle& place) {
    findDialog(dialog)->window = place;
}
Rectangle FakeWindowSystem::mapDialogUnits(Window /*dialog*/, const Rectangle& units) {
    return {units.left * pixelsPerUnit, units.top * pixelsPerUnit, units.right * pixelsPerUnit,
            units.bottom * pixelsPerUnit};
}

// ---- Items --------------------------------------------------------------------------------------

std::vector<platform::WindowSystem::Item> FakeWindowSystem::getItems(Window dialog) {
    std::vector<Item> items;
    for (const FakeItem& item : findDialog(dialog)->items) {
        items.push_back({item.id, item.place, isButton(item) && (item.style & 7) != 0});
    }
    return items;
}
void FakeWindowSystem::moveItem(Window dialog, std::size_t index, const Rectangle& place) {
    findDialog(dialog)->items.at(index).place = place;
}
void FakeWindowSystem::setDefaultButton(Window dialog, Id id) {
    findDialog(dialog)->defaultButton = id;
}
std::uint16_t FakeWindowSystem::defaultButton(Window dialog) {
    return findDialog(dialog)->defaultButton;
}
void FakeWindowSystem::clearList(Window dialog, Id id) {
    at(dialog, id).list.clear();
    at(dialog, id).selected = -1;
}
std::int32_t FakeWindowSystem::addToList(Window dialog, Id id, std::u16string_view text,
                                         std::uintptr_t value, std::int32_t position) {
    auto& list = at(dialog, id).list;
    const std::int32_t index = position < 0 ? getListCount(dialog, id) : position;
    list.insert(list.begin() + index, {std::u16string(text), value});
    return index;
}
void FakeWindowSystem::removeFromList(Window dialog, Id id, std::int32_t index) {
    auto& list = at(dialog, id).list;
    list.erase(list.begin() + index);
}

} // namespace zent::test
