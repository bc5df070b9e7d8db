#include "platform/win32/Win32WindowSystem.h"

#include "platform/KeepForever.h"
#include "platform/win32/Dialog.h"
#include "platform/win32/SeenDesktop.h"
#include "platform/win32/WindowText.h"

#include <commctrl.h>

namespace zent::platform::win32 {

namespace {

HWND asWindow(WindowHandle handle) { return static_cast<HWND>(handle); }

/// Makes a dialog of a template; null for bytes that are none, which the system would read beyond
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

platform::Dialog* Win32WindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                                    const ResourceModule& resources,
                                                    WindowHandle owner,
                                                    DialogProcedure& procedure) {
    const auto dialog = makeDialog(dialogTemplate, resources, procedure);
    return dialog != nullptr ? dialog->createModeless(dialogTemplate, asWindow(owner)) : nullptr;
}

platform::Dialog& Win32WindowSystem::getDialog(WindowHandle window) {
    const auto dialog = Dialog::of(window);
    return dialog != nullptr ? *dialog : none<platform::Dialog>();
}

std::u16string Win32WindowSystem::getCaption(WindowHandle window) {
    return getWindowText(asWindow(window));
}

} // namespace zent::platform::win32

namespace zent::platform {

WindowSystem* WindowSystem::find() {
    static auto& system = keepForever<win32::Win32WindowSystem>();
    return isDesktopSeen() ? &system : nullptr;
}

} // namespace zent::platform
