#include "platform/LibraryEntry.h"

#include "platform/win32/Module.h"

namespace zent::platform {

namespace {

HMODULE ownModule = nullptr;

} // namespace

HMODULE getOwnModule() noexcept { return ownModule; }

} // namespace zent::platform

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved);

/// The loader's calls. A program that the library's objects are linked into never calls this.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
    switch (LOWORD(reason)) {
    case DLL_PROCESS_ATTACH:
        zent::platform::ownModule = module;
        break;
    case DLL_PROCESS_DETACH:
        zent::platform::onProcessDetach();
        break;
    case DLL_THREAD_DETACH:
        zent::platform::onThreadDetach();
        break;
    default:
        break;
    }
    return TRUE;
}
