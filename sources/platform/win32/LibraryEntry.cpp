#include "platform/LibraryEntry.h"

#include "platform/win32/Module.h"
#include "platform/win32/SystemLibrary.h"

namespace zent::platform {

namespace {

HMODULE ownModule = nullptr;

/// Keeps the library loaded for good, since the objects that it keeps would outlive it if a host
/// unloaded it. Windows 2000 has no function for that.
void stayLoaded() noexcept {
    const SystemLibrary kernel(L"kernel32.dll");
    HMODULE module = nullptr;
    if (const auto find = kernel.find<decltype(&GetModuleHandleExW)>("GetModuleHandleExW")) {
        find(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
             reinterpret_cast<const wchar_t*>(&ownModule), &module);
    }
}

} // namespace

HMODULE getOwnModule() noexcept { return ownModule; }

} // namespace zent::platform

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved);

/// The loader calls this. A program that the library's objects are linked into never does.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
    switch (LOWORD(reason)) {
    case DLL_PROCESS_ATTACH:
        zent::platform::ownModule = module;
        zent::platform::stayLoaded();
        break;
    case DLL_PROCESS_DETACH:
        zent::platform::libraryHooks.onProcessDetach();
        break;
    case DLL_THREAD_DETACH:
        zent::platform::libraryHooks.onThreadDetach();
        break;
    default:
        break;
    }
    return TRUE;
}
