#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ocore/Compress/StateData.h"

namespace jobticket {

/// The content of a state blob besides its ticket. Sizes are in bytes.
struct StateBlob {
    std::size_t size = 0;
    std::uint32_t version = 0;
    std::size_t documentSize = 0;          // of the ticket in it, expanded; 0 for an empty one
    std::uint16_t tag = 0;                 // the application's own
    std::optional<zent::UserContext> user; // blobs of the oldest form have none
};

/// Reads a blob, of any form that the library knows, without upgrading it. Raises LibraryError for
/// other bytes; `name` is for messages.
StateBlob inspectState(std::string_view bytes, const std::string& name);

/// Makes a blob anew in the present form, by which the logon name is neither the sender nor the
/// recipient.
std::string withoutLogonNames(std::string_view bytes);

} // namespace jobticket
