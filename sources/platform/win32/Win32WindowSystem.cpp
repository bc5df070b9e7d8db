#include "platform/win32/Win32WindowSystem.h"

#include "platform/KeepForever.h"
#include "platform/win32/Dialog.h"
#include "platform/win32/SeenDesktop.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

#include <commctrl.h>
#include <prsht.h>

namespace zent::platform::win32 {

namespace {

HWND asWindow(WindowHandle handle) { return static_cast<HWND>(handle); }

Rectangle asRectangle(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// The dialog of bytes that are a template; null for others, which the system would read beyond
/// their end.
std::shared_ptr<Dialog> makeDialog(std::span<const std::byte> dialogTemplate,
                                   const ResourceModule& resources, DialogProcedure& procedure) {
    auto form = DialogTemplate::read(dialogTemplate);
    return form ? std::make_shared<Dialog>(std::move(*form), resources, procedure) : nullptr;
}

} // namespace

Win32WindowSystem::Win32WindowSystem() {
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof(classes);
    classes.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&classes);
}

std::intptr_t Win32WindowSystem::runModal(std::span<const std::byte> dialogTemplate,
                                          const ResourceModule& resources, WindowHandle owner,
                                          DialogProcedure& procedure) {
    const auto dialog = makeDialog(dialogTemplate, resources, procedure);
    return dialog != nullptr ? dialog->runModal(dialogTemplate, asWindow(owner)) : -1;
}

WindowHandle Win32WindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                               const ResourceModule& resources, WindowHandle owner,
                                               DialogProcedure& procedure) {
    const auto dialog = makeDialog(dialogTemplate, resources, procedure);
    return dialog != nullptr ? dialog->createModeless(dialogTemplate, asWindow(owner)) : nullptr;
}

void Win32WindowSystem::endDialog(WindowHandle dialog, std::intptr_t value) {
    if (const auto found = Dialog::of(dialog)) {
        found->end(value);
    }
}

void Win32WindowSystem::destroyDialog(WindowHandle dialog) {
    if (const auto found = Dialog::of(dialog)) {
        found->destroy();
    }
}

std::intptr_t Win32WindowSystem::send(WindowHandle dialog, std::uint32_t message,
                                      std::uintptr_t wParam, std::intptr_t lParam) {
    std::intptr_t result = 0;
    if (const auto found = Dialog::of(dialog)) {
        found->deliver(message, wParam, lParam, result);
    }
    return result;
}

void Win32WindowSystem::reportChanged(WindowHandle dialog) {
    const HWND window = asWindow(dialog);
    SendMessageW(GetParent(window), PSM_CHANGED, reinterpret_cast<WPARAM>(window),
                 reinterpret_cast<LPARAM>(window));
}

void Win32WindowSystem::setCaption(WindowHandle dialog, std::u16string_view text) {
    setWindowText(asWindow(dialog), text);
}

std::u16string Win32WindowSystem::getCaption(WindowHandle window) {
    return getWindowText(asWindow(window));
}

bool Win32WindowSystem::isVisible(WindowHandle dialog) {
    return IsWindowVisible(asWindow(dialog)) != FALSE;
}

Rectangle Win32WindowSystem::getWindowRectangle(WindowHandle dialog) {
    RECT rect = {};
    GetWindowRect(asWindow(dialog), &rect);
    return asRectangle(rect);
}

Rectangle Win32WindowSystem::getClientRectangle(WindowHandle dialog) {
    RECT rect = {};
    GetClientRect(asWindow(dialog), &rect);
    return asRectangle(rect);
}

void Win32WindowSystem::moveWindow(WindowHandle dialog, const Rectangle& place) {
    const HWND window = asWindow(dialog);
    MoveWindow(window, place.left, place.top, place.width(), place.height(),
               IsWindowVisible(window));
}

/// Of the screen that the dialog is on.
Rectangle Win32WindowSystem::getWorkArea(WindowHandle dialog) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromWindow(asWindow(dialog), MONITOR_DEFAULTTONEAREST), &info);
    return asRectangle(info.rcWork);
}

Rectangle Win32WindowSystem::mapDialogUnits(WindowHandle dialog, const Rectangle& units) {
    RECT rect = {units.left, units.top, units.right, units.bottom};
    return MapDialogRect(asWindow(dialog), &rect) != FALSE ? asRectangle(rect) : Rectangle();
}

} // namespace zent::platform::win32

namespace zent::platform {

WindowSystem* WindowSystem::find() {
    static auto& system = keepForever<win32::Win32WindowSystem>();
    return isDesktopSeen() ? &system : nullptr;
}

} // namespace zent::platform
