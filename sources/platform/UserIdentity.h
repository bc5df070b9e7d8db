#pragma once

#include <cstdint>
#include <string>

namespace zent::platform {

/// The name that the user has logged on with. Empty if the system can't tell; `systemError` then
/// receives its number for the reason, else 0.
std::u16string getUserLogonName(std::uint32_t& systemError);

/// The outcome of the request for the folder of the user's own files.
enum class ProfileStatus {
    found,
    noFunction,       // the system knows profiles, but has no function that finds one
    tokenRefused,     // the process's token couldn't be opened
    directoryRefused, // the system didn't give the folder
    noDirectory,      // there is none, nor what stands in its place
};

struct UserProfile {
    ProfileStatus status = ProfileStatus::found;
    std::u16string directory{}; // without a trailing separator
    /// The system's number for why it failed or, of a folder that was found, for what went wrong on
    /// the way; 0 if nothing did.
    std::uint32_t error = 0;
    std::uint32_t access = 0; // tokenRefused: what the token was to be opened for
    std::uintptr_t token = 0; // directoryRefused: the token's handle
};

/// Windows: the profile directory or, where the system knows no profiles, the Windows directory.
/// Elsewhere: HOME if it is an absolute path, else the home of the user database; no request but
/// the last can fail.
UserProfile findUserProfile();

} // namespace zent::platform
