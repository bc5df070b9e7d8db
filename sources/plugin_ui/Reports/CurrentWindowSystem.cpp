#include "plugin_ui/Reports/CurrentWindowSystem.h"

#include <atomic>

#include "ocore/Faults/Exceptions.h"

namespace zent {

namespace {

std::atomic<const WindowSystemReplacement*> replacement = nullptr;

} // namespace

platform::WindowSystem* findWindowSystem() {
    const WindowSystemReplacement* const replaced = replacement.load();
    return replaced != nullptr ? replaced->getSystem() : platform::WindowSystem::find();
}

platform::WindowSystem& windowSystem() {
    platform::WindowSystem* const system = findWindowSystem();
    if (system == nullptr) {
        Raise<ResourceAcquisitionException>{}("windowSystem() failed - there is no display\r\n");
    }
    return *system;
}

WindowSystemReplacement::WindowSystemReplacement(platform::WindowSystem* system)
    : m_system(system), m_former(replacement.exchange(this)) {}

WindowSystemReplacement::~WindowSystemReplacement() { replacement = m_former; }

} // namespace zent
