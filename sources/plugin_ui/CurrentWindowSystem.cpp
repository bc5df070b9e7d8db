#include "plugin_ui/CurrentWindowSystem.h"

#include <atomic>

#include "ocore/Exceptions.h"

namespace zent {

namespace {

std::atomic<platform::WindowSystem*> replacement = nullptr;

} // namespace

platform::WindowSystem* findWindowSystem() { return replacement.load(); }

platform::WindowSystem& windowSystem() {
    platform::WindowSystem* const system = findWindowSystem();
    if (system == nullptr) {
        Raise<ResourceAcquisitionException>{}("windowSystem() failed - there is no display\r\n");
    }
    return *system;
}

void setWindowSystem(platform::WindowSystem* system) { replacement = system; }

} // namespace zent
