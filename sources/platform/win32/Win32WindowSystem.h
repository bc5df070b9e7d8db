#pragma once

#include "platform/WindowSystem.h"

namespace zent::platform::win32 {

/// The window system of Windows. It has no state of its own: that lies in the dialogs and their
/// windows. Each of the sources that define it has one subject.
class Win32WindowSystem final : public WindowSystem {
public:
    Win32WindowSystem();

    // Dialogs
    std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                           const ResourceModule& resources, WindowHandle owner,
                           DialogProcedure& procedure) override;
    WindowHandle createModeless(std::span<const std::byte> dialogTemplate,
                                const ResourceModule& resources, WindowHandle owner,
                                DialogProcedure& procedure) override;
    void endDialog(WindowHandle dialog, std::intptr_t value) override;
    void destroyDialog(WindowHandle dialog) override;
    std::intptr_t send(WindowHandle dialog, std::uint32_t message, std::uintptr_t wParam,
                       std::intptr_t lParam) override;
    void reportChanged(WindowHandle dialog) override;
    void setCaption(WindowHandle dialog, std::u16string_view text) override;
    std::u16string getCaption(WindowHandle window) override;
    bool isVisible(WindowHandle dialog) override;
    Rectangle getWindowRectangle(WindowHandle dialog) override;
    Rectangle getClientRectangle(WindowHandle dialog) override;
    void moveWindow(WindowHandle dialog, const Rectangle& place) override;
    Rectangle getWorkArea(WindowHandle dialog) override;
    Rectangle mapDialogUnits(WindowHandle dialog, const Rectangle& units) override;

    // Any item
    std::vector<Item> getItems(WindowHandle dialog) override;
    bool hasItem(WindowHandle dialog, std::uint16_t item) override;
    void moveItem(WindowHandle dialog, std::size_t index, const Rectangle& place) override;
    void showItem(WindowHandle dialog, std::uint16_t item, bool isShown) override;
    bool isItemShown(WindowHandle dialog, std::uint16_t item) override;
    void enableItem(WindowHandle dialog, std::uint16_t item, bool isEnabled) override;
    bool isItemEnabled(WindowHandle dialog, std::uint16_t item) override;
    void focusItem(WindowHandle dialog, std::uint16_t item) override;
    void removeItem(WindowHandle dialog, std::uint16_t item) override;
    void setText(WindowHandle dialog, std::uint16_t item, std::u16string_view text) override;
    std::u16string getText(WindowHandle dialog, std::uint16_t item) override;
    void setToolTip(WindowHandle dialog, std::uint16_t item, std::u16string_view text) override;
    void setProperty(WindowHandle dialog, std::uint16_t item, std::u16string_view name,
                     std::uintptr_t value) override;

    // Edit items
    void setTextLimit(WindowHandle dialog, std::uint16_t item, std::uint32_t units) override;
    bool setCharacterFilter(WindowHandle dialog, std::uint16_t item,
                            CharacterFilter filter) override;
    void selectText(WindowHandle dialog, std::uint16_t item, std::int32_t start,
                    std::int32_t end) override;
    void setTransparent(WindowHandle dialog, std::uint16_t item) override;

    // Buttons, check boxes and radio buttons
    void setDefaultButton(WindowHandle dialog, std::uint16_t item) override;
    void setChecked(WindowHandle dialog, std::uint16_t item, bool isChecked) override;
    bool isChecked(WindowHandle dialog, std::uint16_t item) override;

    // Combo boxes and list boxes
    void clearList(WindowHandle dialog, std::uint16_t item) override;
    std::int32_t addToList(WindowHandle dialog, std::uint16_t item, std::u16string_view text,
                           std::uintptr_t value, std::int32_t position) override;
    void removeFromList(WindowHandle dialog, std::uint16_t item, std::int32_t index) override;
    std::int32_t getListCount(WindowHandle dialog, std::uint16_t item) override;
    std::int32_t getSelected(WindowHandle dialog, std::uint16_t item) override;
    void select(WindowHandle dialog, std::uint16_t item, std::int32_t index) override;
    std::u16string getListText(WindowHandle dialog, std::uint16_t item,
                               std::int32_t index) override;
    void setListText(WindowHandle dialog, std::uint16_t item, std::int32_t index,
                     std::u16string_view text) override;
    std::uintptr_t getListValue(WindowHandle dialog, std::uint16_t item,
                                std::int32_t index) override;

    // List views
    void setListViewStyle(WindowHandle dialog, std::uint16_t item, ListViewStyle style) override;
    void addColumn(WindowHandle dialog, std::uint16_t item, std::u16string_view title,
                   std::int32_t width) override;
    std::int32_t addRow(WindowHandle dialog, std::uint16_t item, std::u16string_view text,
                        std::uint32_t icon, std::uintptr_t value) override;
    void setCell(WindowHandle dialog, std::uint16_t item, std::int32_t row, std::int32_t column,
                 std::u16string_view text) override;
    std::u16string getCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                           std::int32_t column) override;
    void removeRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) override;
    void clearRows(WindowHandle dialog, std::uint16_t item) override;
    std::int32_t getRowCount(WindowHandle dialog, std::uint16_t item) override;
    std::uintptr_t getRowValue(WindowHandle dialog, std::uint16_t item, std::int32_t row) override;
    std::vector<std::int32_t> getSelectedRows(WindowHandle dialog, std::uint16_t item) override;
    void selectRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) override;
    void setRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                       bool isChecked) override;
    bool isRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row) override;

    // Sliders, scroll bars and spins
    void setRange(WindowHandle dialog, std::uint16_t item, std::int32_t lower,
                  std::int32_t upper) override;
    void setPosition(WindowHandle dialog, std::uint16_t item, std::int32_t position) override;
    std::int32_t getPosition(WindowHandle dialog, std::uint16_t item) override;

    // Pictures
    void setBitmap(WindowHandle dialog, std::uint16_t item, std::uint32_t bitmap,
                   bool clearsGround) override;
    void drawBitmap(WindowHandle dialog, const DrawRequest& request, std::uint32_t bitmap) override;

    // Beside dialogs
    std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body,
                                std::u16string_view title, std::uint32_t flags) override;
    std::optional<std::u16string> askForOpenFile(WindowHandle owner,
                                                 const FileQuestion& question) override;
    std::optional<std::u16string> askForSaveFile(WindowHandle owner,
                                                 const FileQuestion& question) override;
    bool showHelp(WindowHandle owner, std::u16string_view helpFile, std::uint32_t context) override;
    bool saveScreenshot(WindowHandle dialog, std::u16string_view fileName) override;
};

} // namespace zent::platform::win32
