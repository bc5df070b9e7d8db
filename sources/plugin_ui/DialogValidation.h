#pragma once

#include "platform/Dialog.h"

namespace zent {

/// Asks each component of a dialog, through its window, whether what the user has entered may go
/// into the ticket; the first that refuses tells the user why.
bool validateDialog(platform::Dialog& dialog);
/// The same before the ticket is saved in a file.
bool validateDialogForSave(platform::Dialog& dialog);

} // namespace zent
