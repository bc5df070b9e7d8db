#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

namespace platform {
struct UserProfile;
}

/// The user who runs the process, asked of the system by each call.
class User {
public:
    User() = delete;

    /// The folder of the user's own files, without a trailing separator. Raises
    /// UserInformationRequestException or ProcessTokenRequestException.
    static CXString getProfileDirectoryPath();
    /// The same for an answer of the system that the caller has.
    static CXString getProfileDirectoryPath(const platform::UserProfile& profile);

    /// The name that the user has logged on with; empty, which is no failure, if it isn't known.
    static CXString getLogonName();

    /// Whether the user measures in inches: false for a metric locale, true for any other.
    static bool usesInches();

    /// The code (see StockSize) of the paper that is usual in the user's locale: letter, legal, A4
    /// or A3.
    static std::uint32_t getDefaultStockSize();
};

} // namespace zent
