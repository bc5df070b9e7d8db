#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent::test {

class FakeDialog;

/// An item of each kind that has rules of its own, at once; list views are left to the real window
/// systems. What it holds is open to the tests.
class FakeItem final : public platform::ButtonItem,
                       public platform::TextItem,
                       public platform::ChoiceItem,
                       public platform::RangeItem,
                       public platform::PictureItem {
public:
    std::u16string windowClass; // "#128" for the class of number 0x80
    std::uint32_t style = 0;
    platform::Rectangle place;
    std::uint16_t id = 0;
    bool shown = false;
    bool enabled = false;
    bool checked = false;
    std::u16string text;
    std::u16string toolTip;
    platform::CharacterFilter filter;
    std::vector<std::pair<std::u16string, std::uintptr_t>> list;
    std::int32_t selected = -1;
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    std::int32_t position = 0;
    std::uint32_t bitmap = 0;
    bool isGroundCleared = false;
    FakeDialog* dialog = nullptr; // null for an item that isn't there

    bool isThere() const override { return dialog != nullptr; }
    std::uint16_t getId() const override { return id; }
    platform::Rectangle getPlace() const override { return place; }
    void moveTo(const platform::Rectangle& there) override { place = there; }
    bool isShown() const override { return shown; }
    void show(bool isShown) override { shown = isShown; }
    bool isEnabled() const override { return enabled; }
    void enable(bool isEnabled) override { enabled = isEnabled; }
    void remove() override { dialog = nullptr; }
    std::u16string getText() const override { return text; }
    void setText(std::u16string_view newText) override;
    void setToolTip(std::u16string_view tip) override { toolTip = tip; }
    bool isMarkedButton() const override;

    bool isChecked() const override { return checked; }
    void setChecked(bool isChecked) override { checked = isChecked; }
    void makeDefault() override;
    bool setFilter(const platform::CharacterFilter& newFilter) override;

    void clear() override;
    std::int32_t add(std::u16string_view entry, std::uintptr_t value, std::int32_t index) override;
    std::int32_t getSelected() const override { return selected; }
    void select(std::int32_t index) override { selected = index; }
    void setEntryText(std::int32_t index, std::u16string_view entry) override;

    void setRange(std::int32_t newLower, std::int32_t newUpper) override;
    std::int32_t getPosition() const override { return position; }
    void setPosition(std::int32_t newPosition) override { position = newPosition; }
    void setBitmap(std::uint32_t newBitmap, bool clearsGround) override;
};

/// A window system without windows, for the rules of dialogs: it keeps what a dialog's items hold,
/// raises the events that the port names, and lets a test act as the user. It takes the place of
/// the platform's as long as it lives.
///
/// A dialog unit is two pixels wide and high, and a frame adds 10 pixels to the right and 30 to the
/// bottom.
class FakeWindowSystem final : public platform::WindowSystem {
public:
    using Window = platform::WindowHandle;
    using Id = std::uint16_t;

    FakeWindowSystem();
    ~FakeWindowSystem() override;

    /// What the user does once the next modal dialog is open; several run for one dialog each, in
    /// order. A dialog for which there is nothing to do is cancelled.
    void onceOpen(std::function<void(Window)> acts);

    // The user's acts. What is hidden or disabled can't be acted on.
    void type(Window dialog, Id id, std::u16string_view text);
    void clear(Window dialog, Id id);
    void leave(Window dialog, Id id);
    void click(Window dialog, Id id);
    void choose(Window dialog, Id id, std::int32_t index);
    std::intptr_t spin(Window dialog, Id id, std::int32_t delta);
    void slide(Window dialog, Id id, std::int32_t position);

    /// The item of an id. If the dialog has none, it is one that isn't there and does nothing.
    FakeItem& item(Window dialog, Id id);
    /// The ids of all items that are shown.
    std::vector<std::uint16_t> shownItems(Window dialog);
    /// How often the dialogs have reported a change.
    std::size_t changesReported() const { return m_changesReported; }
    /// Which button is the default one; 0 for none.
    std::uint16_t defaultButton(Window dialog);
    /// Whether filters of characters can be set.
    void setCanFilter(bool canFilter) { m_canFilter = canFilter; }

    std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                           const platform::ResourceModule& resources, Window owner,
                           platform::DialogProcedure& procedure) override;
    platform::Dialog* createModeless(std::span<const std::byte> dialogTemplate,
                                     const platform::ResourceModule& resources, Window owner,
                                     platform::DialogProcedure& procedure) override;
    platform::Dialog& getDialog(Window window) override;
    std::u16string getCaption(Window window) override;
    std::int32_t showMessageBox(Window, std::u16string_view, std::u16string_view,
                                std::uint32_t) override {
        return 0;
    }
    std::optional<std::u16string> askForOpenFile(Window, const FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::u16string> askForSaveFile(Window, const FileQuestion&) override {
        return std::nullopt;
    }
    bool showHelp(Window, std::u16string_view, std::uint32_t) override { return false; }

private:
    friend class FakeDialog;
    friend class FakeItem;

    FakeDialog* findDialog(Window window);
    FakeItem* findUsable(Window dialog, Id id);

    std::vector<std::unique_ptr<FakeDialog>> m_dialogs;
    std::vector<std::function<void(Window)>> m_acts;
    std::size_t m_changesReported = 0;
    bool m_canFilter = true;
    std::unique_ptr<FakeItem> m_nothing;
    WindowSystemReplacement m_replacement{this};
};

} // namespace zent::test
