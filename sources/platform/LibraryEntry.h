#pragma once

namespace zent::platform {

/// What is called when the system's loader tells the library something. Set while the library is
/// loaded, since it may go without ever having been used; until then nothing is called.
struct LibraryHooks {
    void (*onProcessDetach)() = [] {};
    void (*onThreadDetach)() = [] {}; // Windows alone reports threads
};

/// The hooks that are set. They are never destroyed: the loader's last call comes after the end of
/// static objects.
inline constinit LibraryHooks libraryHooks;

} // namespace zent::platform
