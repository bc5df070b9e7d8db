#include "platform/win32/Dialog.h"

#include <algorithm>
#include <utility>

#include "platform/win32/Module.h"
#include "platform/win32/ResourceImages.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

#include <prsht.h>

namespace zent::platform::win32 {

namespace {

Rectangle asRectangle(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// A copy at an address that the system accepts for a template.
class AlignedTemplate {
public:
    explicit AlignedTemplate(std::span<const std::byte> bytes)
        : m_bytes(bytes.begin(), bytes.end()) {}
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_bytes.data()); }

private:
    std::vector<std::byte> m_bytes;
};

} // namespace

Dialog::Dialog(DialogTemplate form, const ResourceModule& resources, DialogProcedure& procedure)
    : m_form(std::move(form)), m_resources(resources), m_procedure(procedure) {}

std::intptr_t Dialog::runModal(std::span<const std::byte> dialogTemplate, HWND owner) {
    m_isModal = true;
    m_isBeingOpened = true;
    const std::intptr_t value =
        DialogBoxIndirectParamW(getOwnModule(), AlignedTemplate(dialogTemplate).get(), owner,
                                &procedure, reinterpret_cast<LPARAM>(this));
    if (m_exception != nullptr) {
        std::rethrow_exception(m_exception);
    }
    // The system says 0 if the owner is no window.
    return m_window != nullptr ? value : -1;
}

Dialog* Dialog::createModeless(std::span<const std::byte> dialogTemplate, HWND owner) {
    m_isBeingOpened = true;
    const HWND window =
        CreateDialogIndirectParamW(getOwnModule(), AlignedTemplate(dialogTemplate).get(), owner,
                                   &procedure, reinterpret_cast<LPARAM>(this));
    m_isBeingOpened = false;
    if (m_exception != nullptr) {
        DestroyWindow(window);
        std::rethrow_exception(m_exception);
    }
    if (window == nullptr || m_hasEnded) { // its own first event may have ended it
        return nullptr;
    }
    ShowWindow(window, SW_SHOW);
    return this;
}

void Dialog::end(std::intptr_t value) {
    if (m_isModal) {
        m_hasEnded = true;
        EndDialog(m_window, value);
    }
}

void Dialog::destroy() {
    if (!m_isModal) {
        m_hasEnded = true;
        DestroyWindow(m_window);
    }
}

Dialog* Dialog::find(HWND window) {
    const bool isOwn =
        GetWindowLongPtrW(window, DWLP_DLGPROC) == reinterpret_cast<LONG_PTR>(&procedure);
    return isOwn ? reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, GWLP_USERDATA)) : nullptr;
}

std::shared_ptr<Dialog> Dialog::of(WindowHandle window) {
    Dialog* const dialog = find(static_cast<HWND>(window));
    return dialog != nullptr ? dialog->shared_from_this() : nullptr;
}

void Dialog::endBy(const std::exception_ptr& exception, HWND window) {
    for (HWND at = window; at != nullptr; at = GetWindow(at, GW_OWNER)) {
        Dialog* const dialog = find(at);
        if (dialog != nullptr && dialog->m_isBeingOpened) {
            dialog->m_exception = exception;
            dialog->end(-1);
            return;
        }
    }
    // The loop is the application's, which may know what to do with the exception.
    std::rethrow_exception(exception);
}

bool Dialog::deliver(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam,
                     std::intptr_t& result) {
    result = 0;
    const bool isHandled = m_procedure.processEvent(*this, message, wParam, lParam, result);
    SetWindowLongPtrW(m_window, DWLP_MSGRESULT, result);
    return isHandled;
}

bool Dialog::command(std::uint16_t item, std::uint32_t code) {
    std::intptr_t result = 0;
    return deliver(event::command, MAKEWPARAM(item, code), 0, result);
}

Item* Dialog::findItem(std::uint16_t id) const {
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) {
        return item->isThere() && item->getId() == id;
    });
    return found != m_items.end() ? found->get() : nullptr;
}

std::vector<DialogItem*> Dialog::getItems() const {
    std::vector<DialogItem*> items;
    for (const auto& item : m_items) {
        if (item->isThere()) {
            items.push_back(item.get());
        }
    }
    return items;
}

void Dialog::forget(HWND item) {
    m_toolTips.set(m_window, item, u"");
    m_transparent.erase(item);
}

void Dialog::setProperty(HWND item, std::u16string_view name, std::uintptr_t value) {
    const auto place = m_properties.emplace(item, name).first;
    SetPropW(item, wide(place->second.c_str()), reinterpret_cast<HANDLE>(value));
}

bool Dialog::showHelp(const std::u16string& helpFile, std::uint32_t context) {
    m_hasShownHelp = true;
    return WinHelpW(m_window, wide(helpFile.c_str()), HELP_CONTEXT, context) != FALSE;
}

// ---- The window ---------------------------------------------------------------------------------

std::intptr_t Dialog::send(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
    const auto kept = shared_from_this(); // the event may end it
    std::intptr_t result = 0;
    deliver(message, wParam, lParam, result);
    return result;
}

void Dialog::reportChanged() {
    SendMessageW(GetParent(m_window), PSM_CHANGED, reinterpret_cast<WPARAM>(m_window),
                 reinterpret_cast<LPARAM>(m_window));
}

void Dialog::setCaption(std::u16string_view text) { setWindowText(m_window, text); }

bool Dialog::isVisible() const { return IsWindowVisible(m_window) != FALSE; }

Rectangle Dialog::getWindowRectangle() const {
    RECT rect = {};
    GetWindowRect(m_window, &rect);
    return asRectangle(rect);
}

Rectangle Dialog::getClientRectangle() const {
    RECT rect = {};
    GetClientRect(m_window, &rect);
    return asRectangle(rect);
}

void Dialog::moveTo(const Rectangle& place) {
    MoveWindow(m_window, place.left, place.top, place.width(), place.height(),
               IsWindowVisible(m_window));
}

Rectangle Dialog::getWorkArea() const {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromWindow(m_window, MONITOR_DEFAULTTONEAREST), &info);
    return asRectangle(info.rcWork);
}

Rectangle Dialog::mapDialogUnits(const Rectangle& units) const {
    RECT rect = {units.left, units.top, units.right, units.bottom};
    return MapDialogRect(m_window, &rect) != FALSE ? asRectangle(rect) : Rectangle();
}

std::int32_t Dialog::getDotsPerInch() const {
    return GetDeviceCaps(WindowSurface(m_window).get(), LOGPIXELSY);
}

std::uint16_t Dialog::getFocusedItem() const {
    const HWND focus = GetFocus();
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) {
        return item->isThere() && (item->window() == focus || IsChild(item->window(), focus));
    });
    return focus != nullptr && found != m_items.end() ? (*found)->getId() : std::uint16_t{0};
}

// ---- What the window receives ------------------------------------------------------------------

INT_PTR CALLBACK Dialog::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
        reinterpret_cast<Dialog*>(lParam)->m_window = window;
    }
    // Messages that come before the window has its object are about the making of the items.
    const std::shared_ptr<Dialog> dialog = of(window);
    if (dialog == nullptr) {
        return FALSE;
    }
    try {
        return dialog->process(message, wParam, lParam);
    } catch (...) {
        endBy(std::current_exception(), window);
        return TRUE;
    }
}

INT_PTR Dialog::process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        open();
        return FALSE; // the focus is where it belongs
    case WM_COMMAND:
        return onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
    case WM_NOTIFY:
        return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_HSCROLL:
    case WM_VSCROLL:
        return onScroll(LOWORD(wParam), reinterpret_cast<HWND>(lParam));
    case WM_DRAWITEM:
        return onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<INT_PTR>(
            onColor(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
    case WM_CLOSE:
        if (raisesEvents()) {
            onClick(IDCANCEL);
        }
        return TRUE;
    case WM_DESTROY:
        onDestroy();
        return FALSE;
    case WM_NCDESTROY:
        onGone();
        return FALSE;
    default:
        return FALSE;
    }
}

void Dialog::open() {
    listItems();
    loadImages();
    if (!m_isModal) {
        m_self = shared_from_this();
        m_keys = std::make_unique<ModelessKeys>(m_window);
    }
    RECT created = {};
    GetWindowRect(m_window, &created);
    std::intptr_t result = 0;
    deliver(event::initDialog, 0, 0, result);
    RECT place = {};
    GetWindowRect(m_window, &place);
    const bool isPlaced = place.left != created.left || place.top != created.top;
    if (!isPlaced && GetWindow(m_window, GW_OWNER) == nullptr) {
        placeInTheMiddle();
    }
    focusFirstItem();
}

/// Moves the dialog to the middle of the screen. The system would leave a dialog without an owner
/// in the corner.
void Dialog::placeInTheMiddle() {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromWindow(m_window, MONITOR_DEFAULTTOPRIMARY), &info);
    const RECT& area = info.rcWork;
    RECT place = {};
    GetWindowRect(m_window, &place);
    // A dialog that is larger than the screen shows its top left part.
    const LONG left =
        area.left + std::max(area.right - area.left - (place.right - place.left), 0L) / 2;
    const LONG top =
        area.top + std::max(area.bottom - area.top - (place.bottom - place.top), 0L) / 2;
    SetWindowPos(m_window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Dialog::listItems() {
    for (HWND item = GetWindow(m_window, GW_CHILD); item != nullptr;
         item = GetWindow(item, GW_HWNDNEXT)) {
        m_items.push_back(Item::make(*this, item));
    }
}

/// The system looks for the pictures of the items in the module that a dialog belongs to, and these
/// dialogs come with another one.
void Dialog::loadImages() {
    const std::size_t count = std::min(m_items.size(), m_form.items.size());
    for (std::size_t i = 0; i < count; ++i) {
        const auto* const resource = std::get_if<std::uint16_t>(&m_form.items[i].title);
        if (resource != nullptr && m_items[i]->kind() == ItemKind::label) {
            loadImage(m_items[i]->window(), m_form.items[i].style & SS_TYPEMASK, *resource);
        }
    }
}

void Dialog::loadImage(HWND label, std::uint32_t type, std::uint16_t resource) {
    if (type == SS_ICON) {
        m_icons.push_back(createIcon(m_resources, resource, GetSystemMetrics(SM_CXICON),
                                     GetSystemMetrics(SM_CYICON)));
        SendMessageW(label, STM_SETIMAGE, IMAGE_ICON,
                     reinterpret_cast<LPARAM>(m_icons.back().get()));
    } else if (type == SS_BITMAP) {
        m_bitmaps.push_back(createBitmap(m_resources, resource));
        SendMessageW(label, STM_SETIMAGE, IMAGE_BITMAP,
                     reinterpret_cast<LPARAM>(m_bitmaps.back().get()));
    }
}

/// Gives the first item the focus unless the procedure has chosen one. The system would choose
/// before the procedure has shown any item.
void Dialog::focusFirstItem() {
    if (m_hasEnded || IsChild(m_window, GetFocus())) {
        return;
    }
    const Silence silence(*this);
    const HWND first = GetNextDlgTabItem(m_window, nullptr, FALSE);
    if (first != nullptr) {
        SendMessageW(m_window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    }
}

void Dialog::onDestroy() {
    m_hasEnded = true;
    std::intptr_t result = 0;
    deliver(event::destroy, 0, 0, result);
    for (const auto& [item, name] : m_properties) {
        RemovePropW(item, wide(name.c_str())); // a window must have no property left at its end
    }
    if (m_hasShownHelp) {
        WinHelpW(m_window, nullptr, HELP_QUIT, 0);
    }
}

void Dialog::onGone() {
    m_keys.reset();
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    m_self.reset();
}

} // namespace zent::platform::win32
