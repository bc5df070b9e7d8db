#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent::platform {

// `systemError` receives the system's number for what went wrong on the way without being a
// failure, 0 if nothing did.

/// The name that the user has logged on with. Empty if the system can't tell.
CXString getUserLogonName(std::uint32_t& systemError);

/// The folder of the user's own files, without a trailing separator. Windows: the profile
/// directory or, where the system knows no profiles, the Windows directory. Elsewhere: HOME if it
/// is an absolute path, else the home of the user database. Raises
/// UserInformationRequestException, and on Windows ProcessTokenRequestException.
CXString getUserProfileDirectory(std::uint32_t& systemError);

} // namespace zent::platform
