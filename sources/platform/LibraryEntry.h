#pragma once

namespace zent::platform {

/// The functions that the adapter calls when the system's loader reports something. They are set
/// while the library is loaded, since it may be unloaded without ever having been used; until then
/// they do nothing.
struct LibraryHooks {
    void (*onProcessDetach)() = [] {};
    void (*onThreadDetach)() = [] {}; // Windows alone reports threads
};

/// The hooks that are set. They are never destroyed: the loader's last call comes after the end of
/// static objects.
inline constinit LibraryHooks libraryHooks;

} // namespace zent::platform
