#pragma once

#include <exception>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Dialog.h"
#include "platform/DialogTemplate.h"
#include "platform/ResourceModule.h"
#include "platform/win32/GdiHandles.h"
#include "platform/win32/Item.h"
#include "platform/win32/ModelessKeys.h"
#include "platform/win32/ToolTips.h"

#include <windows.h>

#include <commctrl.h>

namespace zent::platform::win32 {

/// A dialog of the library, from its window's creation to its end: turns the window's messages into
/// the port's events. It is always held by shared pointers, since an event may end its window.
class Dialog final : public platform::Dialog, public std::enable_shared_from_this<Dialog> {
public:
    Dialog(DialogTemplate form, const ResourceModule& resources, DialogProcedure& procedure);

    // ---- Opening and ending --------------------------------------------------------------------

    /// Runs a modal dialog and gives the value that ended it, -1 if it couldn't be made.
    /// `dialogTemplate` holds the bytes from which the form was read.
    std::intptr_t runModal(std::span<const std::byte> dialogTemplate, HWND owner);
    /// Makes and shows a modeless dialog; null if it couldn't be made. The window keeps the object.
    Dialog* createModeless(std::span<const std::byte> dialogTemplate, HWND owner);

    /// The dialog that a window is; null for all other windows.
    static std::shared_ptr<Dialog> of(WindowHandle window);
    /// Ends a dialog, or the modal one that a modeless one stands before, by an exception, which
    /// can't pass through the system's message loop: it is raised again by what opened the dialog.
    static void endBy(const std::exception_ptr& exception, HWND window);

    /// Calls the procedure at once; gives whether it handled the event.
    bool deliver(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam,
                 std::intptr_t& result);
    /// Reports a command to the procedure, whether or not the user is its cause.
    bool command(std::uint16_t item, std::uint32_t code);

    // ---- As the port has it --------------------------------------------------------------------

    WindowHandle getHandle() override { return m_window; }
    void end(std::intptr_t value) override;
    void destroy() override;
    std::intptr_t send(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) override;
    void reportChanged() override;
    void setCaption(std::u16string_view text) override;
    bool isVisible() const override;
    Rectangle getWindowRectangle() const override;
    Rectangle getClientRectangle() const override;
    void moveTo(const Rectangle& place) override;
    /// The work area of the screen that the dialog is on.
    Rectangle getWorkArea() const override;
    Rectangle mapDialogUnits(const Rectangle& units) const override;
    std::int32_t getDotsPerInch() const override;
    std::uint16_t getFocusedItem() const override;
    std::vector<DialogItem*> getItems() const override;
    Item* findItem(std::uint16_t id) const override;

    // ---- For its items -------------------------------------------------------------------------

    HWND window() const { return m_window; }
    const ResourceModule& resources() const { return m_resources; }
    /// All items in the order of the template, including those that were removed.
    const std::vector<std::unique_ptr<Item>>& items() const { return m_items; }
    void setToolTip(HWND item, std::u16string_view text) { m_toolTips.set(m_window, item, text); }
    /// Lets the page shine through an edit item that is read-only.
    void setTransparent(HWND edit) { m_transparent.insert(edit); }
    void setProperty(HWND item, std::u16string_view name, std::uintptr_t value);
    /// Called before an item's window is destroyed.
    void forget(HWND item);
    void tellMouse(std::uint32_t message, std::uint16_t item, LPARAM place);
    bool showHelp(const std::u16string& helpFile, std::uint32_t context);

    /// While it lives, what happens to items is the program's doing and raises no event, but that
    /// an edit item lost the focus.
    class Silence {
    public:
        explicit Silence(Dialog& dialog) : m_dialog(dialog.shared_from_this()) {
            ++m_dialog->m_silences;
        }
        ~Silence() { --m_dialog->m_silences; }
        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;

    private:
        std::shared_ptr<Dialog> m_dialog; // an event may end it
    };

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static Dialog* find(HWND window);
    INT_PTR process(UINT message, WPARAM wParam, LPARAM lParam);

    void open();
    void listItems();
    void loadImages();
    void loadImage(HWND label, std::uint32_t type, std::uint16_t resource);
    void focusFirstItem();
    void placeInTheMiddle();
    bool raisesEvents() const { return m_silences == 0 && !m_hasEnded; }
    bool onCommand(std::uint16_t id, std::uint32_t code, HWND control);
    bool onClick(std::uint16_t id);
    bool onNotify(const NMHDR& header);
    bool onSpinStep(const NMUPDOWN& step);
    void onListViewChanging(const NMLISTVIEW& row);
    bool onListView(const NMLISTVIEW& row);
    bool notify(const Notification& notification);
    bool onScroll(std::uint32_t code, HWND control);
    bool onDrawItem(const DRAWITEMSTRUCT& request);
    HBRUSH onColor(HDC target, HWND control) const;
    void onDestroy();
    void onGone();

    DialogTemplate m_form;
    const ResourceModule& m_resources;
    DialogProcedure& m_procedure;
    HWND m_window = nullptr;
    std::vector<std::unique_ptr<Item>> m_items;
    std::set<HWND> m_transparent;
    std::set<std::pair<HWND, std::u16string>> m_properties;
    std::vector<OwnBitmap> m_bitmaps; // the pictures of the template's items
    std::vector<OwnIcon> m_icons;
    ToolTips m_toolTips;
    std::unique_ptr<ModelessKeys> m_keys;
    std::shared_ptr<Dialog> m_self; // set for a modeless dialog, as long as its window exists
    std::exception_ptr m_exception;
    int m_silences = 0;
    bool m_isModal = false;
    bool m_isBeingOpened = false; // true while it is made, and for the whole run of a modal dialog
    bool m_hasEnded = false;
    bool m_hasShownHelp = false;
};

} // namespace zent::platform::win32
