#pragma once

namespace zent {

/// Raised by what this version of the library declares but can't do yet. It ends in the frame's
/// catch-all, with the result ZENT_ERR_UNKNOWN.
struct UnavailableCall {};

} // namespace zent
