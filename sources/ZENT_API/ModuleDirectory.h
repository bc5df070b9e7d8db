#pragma once

#include "ocore/Text/CXString.h"

namespace zent {

/// The folder of a file's path, with its trailing separator. A path without any separator gives its
/// first character alone.
CXString cutToDirectory(const CXString& path, char16_t separator);

/// Tells the parts of the library that need files where its own folder is.
void announceModuleDirectory();

} // namespace zent
