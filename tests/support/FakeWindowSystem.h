#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent::test {

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

    struct FakeItem {
        std::u16string windowClass; // "#128" for the class of number 0x80
        std::uint32_t style = 0;
        platform::Rectangle place;
        std::uint16_t id = 0;
        bool isThere = true;
        bool isShown = false;
        bool isEnabled = true;
        bool isChecked = false;
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
    };

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

    const FakeItem& item(Window dialog, Id id) { return at(dialog, id); }
    /// Of all items that are shown.
    std::vector<std::uint16_t> shownItems(Window dialog);
    /// How often the dialogs have told of a change.
    std::size_t changesReported() const { return m_changesReported; }
    /// What was drawn last.
    std::uint32_t drawnBitmap() const { return m_drawnBitmap; }
    /// Which button is the default one; 0 for none.
    std::uint16_t defaultButton(Window dialog);
    /// Whether filters of characters can be set.
    void setCanFilter(bool canFilter) { m_canFilter = canFilter; }

    // The port: dialogs.
    std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                           const platform::ResourceModule& resources, Window owner,
                           platform::DialogProcedure& procedure) override;
    Window createModeless(std::span<const std::byte> dialogTemplate,
                          const platform::ResourceModule& resources, Window owner,
                          platform::DialogProcedure& procedure) override;
    void endDialog(Window dialog, std::intptr_t value) override;
    void destroyDialog(Window dialog) override;
    std::intptr_t send(Window dialog, std::uint32_t message, std::uintptr_t wParam,
                       std::intptr_t lParam) override;
    void reportChanged(Window /*dialog*/) override { ++m_changesReported; }
    void setCaption(Window dialog, std::u16string_view text) override;
    std::u16string getCaption(Window window) override;
    bool isVisible(Window dialog) override { return findDialog(dialog) != nullptr; }
    platform::Rectangle getWindowRectangle(Window dialog) override;
    platform::Rectangle getClientRectangle(Window dialog) override;
    void moveWindow(Window dialog, const platform::Rectangle& place) override;
    platform::Rectangle getWorkArea(Window /*dialog*/) override { return {0, 0, 1024, 768}; }
    platform::Rectangle mapDialogUnits(Window dialog, const platform::Rectangle& units) override;
    std::vector<Item> getItems(Window dialog) override;
    void moveItem(Window dialog, std::size_t index, const platform::Rectangle& place) override;

    // Items of any kind, boxes and buttons.
    bool hasItem(Window dialog, Id id) override { return find(dialog, id) != nullptr; }
    void showItem(Window dialog, Id id, bool isShown) override { at(dialog, id).isShown = isShown; }
    bool isItemShown(Window dialog, Id id) override { return at(dialog, id).isShown; }
    void enableItem(Window dialog, Id id, bool isEnabled) override {
        at(dialog, id).isEnabled = isEnabled;
    }
    bool isItemEnabled(Window dialog, Id id) override { return at(dialog, id).isEnabled; }
    void focusItem(Window /*dialog*/, Id /*id*/) override {}
    void removeItem(Window dialog, Id id) override { at(dialog, id).isThere = false; }
    void setText(Window dialog, Id id, std::u16string_view text) override {
        changeText(dialog, at(dialog, id), text);
    }
    std::u16string getText(Window dialog, Id id) override { return at(dialog, id).text; }
    void setToolTip(Window dialog, Id id, std::u16string_view text) override {
        at(dialog, id).toolTip = text;
    }
    void setTextLimit(Window /*dialog*/, Id /*id*/, std::uint32_t /*units*/) override {}
    bool setCharacterFilter(Window dialog, Id id, platform::CharacterFilter filter) override {
        at(dialog, id).filter = std::move(filter);
        return m_canFilter;
    }
    void selectText(Window /*dialog*/, Id /*id*/, std::int32_t, std::int32_t) override {}
    void setTransparent(Window /*dialog*/, Id /*id*/) override {}
    void setDefaultButton(Window dialog, Id id) override;
    void setChecked(Window dialog, Id id, bool isChecked) override {
        at(dialog, id).isChecked = isChecked;
    }
    bool isChecked(Window dialog, Id id) override { return at(dialog, id).isChecked; }

    // Combo boxes and list boxes.
    void clearList(Window dialog, Id id) override;
    std::int32_t addToList(Window dialog, Id id, std::u16string_view text, std::uintptr_t value,
                           std::int32_t position) override;
    void removeFromList(Window dialog, Id id, std::int32_t index) override;
    std::int32_t getListCount(Window dialog, Id id) override {
        return static_cast<std::int32_t>(at(dialog, id).list.size());
    }
    std::int32_t getSelected(Window dialog, Id id) override { return at(dialog, id).selected; }
    void select(Window dialog, Id id, std::int32_t index) override {
        at(dialog, id).selected = index;
    }
    std::u16string getListText(Window dialog, Id id, std::int32_t index) override {
        return entry(dialog, id, index).first;
    }
    void setListText(Window dialog, Id id, std::int32_t index, std::u16string_view text) override {
        entry(dialog, id, index).first = text;
    }
    std::uintptr_t getListValue(Window dialog, Id id, std::int32_t index) override {
        return entry(dialog, id, index).second;
    }

    // List views are left to the real window systems.
    void setListViewStyle(Window, Id, ListViewStyle) override {}
    void addColumn(Window, Id, std::u16string_view, std::int32_t) override {}
    std::int32_t addRow(Window, Id, std::u16string_view, std::uint32_t, std::uintptr_t) override {
        return -1;
    }
    void setCell(Window, Id, std::int32_t, std::int32_t, std::u16string_view) override {}
    std::u16string getCell(Window, Id, std::int32_t, std::int32_t) override { return {}; }
    void removeRow(Window, Id, std::int32_t) override {}
    void clearRows(Window, Id) override {}
    std::int32_t getRowCount(Window, Id) override { return 0; }
    std::uintptr_t getRowValue(Window, Id, std::int32_t) override { return 0; }
    std::vector<std::int32_t> getSelectedRows(Window, Id) override { return {}; }
    void selectRow(Window, Id, std::int32_t) override {}
    void setRowChecked(Window, Id, std::int32_t, bool) override {}
    bool isRowChecked(Window, Id, std::int32_t) override { return false; }

    // Sliders, pictures, and what is beside dialogs.
    void setRange(Window dialog, Id id, std::int32_t lower, std::int32_t upper) override {
        at(dialog, id).lower = lower;
        at(dialog, id).upper = upper;
    }
    void setPosition(Window dialog, Id id, std::int32_t position) override {
        at(dialog, id).position = position;
    }
    std::int32_t getPosition(Window dialog, Id id) override { return at(dialog, id).position; }
    void setBitmap(Window dialog, Id id, std::uint32_t bitmap, bool clearsGround) override {
        at(dialog, id).bitmap = bitmap;
        at(dialog, id).isGroundCleared = clearsGround;
    }
    void drawBitmap(Window, const platform::DrawRequest&, std::uint32_t bitmap) override {
        m_drawnBitmap = bitmap;
    }
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
    bool saveScreenshot(Window, std::u16string_view) override { return false; }

private:
    struct Dialog;

    Dialog* findDialog(Window window);
    FakeItem* find(Window dialog, Id id);
    FakeItem* findUsable(Window dialog, Id id);
    /// One of no dialog's if it isn't there: what is done to it doesn't matter.
    FakeItem& at(Window dialog, Id id);
    std::pair<std::u16string, std::uintptr_t>& entry(Window dialog, Id id, std::int32_t index);
    void command(Window dialog, Id id, std::uint32_t notification);
    void changeText(Window dialog, FakeItem& item, std::u16string_view text);

    std::vector<std::unique_ptr<Dialog>> m_dialogs;
    std::vector<std::function<void(Window)>> m_acts;
    std::size_t m_changesReported = 0;
    std::uint32_t m_drawnBitmap = 0;
    bool m_canFilter = true;
    FakeItem m_nothing;
    WindowSystemReplacement m_replacement{this};
};

} // namespace zent::test
