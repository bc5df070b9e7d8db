#pragma once

#include "platform/WindowSystem.h"

namespace zent {

/// Finds the window system that dialogs are on, which is the platform's unless a test has put
/// another in its place. Gives null if there is none.
platform::WindowSystem* findWindowSystem();
/// Does the same for code that runs inside a dialog. Raises ResourceAcquisitionException without
/// one.
platform::WindowSystem& windowSystem();

/// Puts a window system in the place of the platform's, or none (null), as long as it lives.
class WindowSystemReplacement {
public:
    explicit WindowSystemReplacement(platform::WindowSystem* system);
    ~WindowSystemReplacement();
    WindowSystemReplacement(const WindowSystemReplacement&) = delete;
    WindowSystemReplacement& operator=(const WindowSystemReplacement&) = delete;

    platform::WindowSystem* getSystem() const { return m_system; }

private:
    platform::WindowSystem* m_system;
    const WindowSystemReplacement* m_former;
};

} // namespace zent
