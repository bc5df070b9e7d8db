#pragma once

#include "platform/WindowSystem.h"

namespace zent {

/// Asks each component of a dialog, through its window, whether what the user has entered may go
/// into the ticket; the first that refuses tells the user why.
bool validateDialog(platform::WindowHandle window);
/// The same before the ticket is saved in a file.
bool validateDialogForSave(platform::WindowHandle window);

} // namespace zent
