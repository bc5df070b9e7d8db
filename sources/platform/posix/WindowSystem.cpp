#include "platform/WindowSystem.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include <dlfcn.h>

#include "platform/CodePage.h"
#include "platform/Files.h"

namespace zent::platform {

namespace {

using Adapter = WindowSystem* (*)();

/// Whether there may be a display on which somebody sees a window.
bool isDisplayNamed() {
    const char* const variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(std::begin(variables), std::end(variables), [](const char* variable) {
        const char* const value = std::getenv(variable);
        return value != nullptr && *value != '\0';
    });
}

/// Finds the adapter's one function; null if the adapter, or a library that it needs, is missing.
/// The adapter stays loaded.
Adapter loadAdapter() {
    if (!isDisplayNamed()) {
        return nullptr;
    }
    const std::u16string path = getDriverDirectory() + u"libzent27-qt.so";
    if (isBareName(path)) { // the library's own folder isn't known
        return nullptr;
    }
    void* const library = dlopen(toAnsi(path).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    return library != nullptr ? reinterpret_cast<Adapter>(dlsym(library, "zentQtWindowSystem"))
                              : nullptr;
}

} // namespace

WindowSystem* WindowSystem::find() {
    static const Adapter adapter = loadAdapter();
    return adapter != nullptr ? adapter() : nullptr;
}

} // namespace zent::platform
