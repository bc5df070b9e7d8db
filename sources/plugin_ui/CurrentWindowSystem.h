#pragma once

#include "platform/WindowSystem.h"

namespace zent {

/// The window system that dialogs are on: the platform's, unless a test has put its own in place;
/// null if there is none.
platform::WindowSystem* findWindowSystem();
/// The same for code that runs inside a dialog. Raises ResourceAcquisitionException without one.
platform::WindowSystem& windowSystem();
/// Null puts the platform's back.
void setWindowSystem(platform::WindowSystem* system);

} // namespace zent
