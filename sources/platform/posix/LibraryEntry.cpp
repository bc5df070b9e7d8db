#include "platform/LibraryEntry.h"

namespace zent::platform {

namespace {

/// The loader's call when the library goes. It may come after the end of static objects; what it
/// leads to must not need any. Threads that end aren't reported here.
[[gnu::destructor]] void onUnload() { libraryHooks.onProcessDetach(); }

} // namespace

} // namespace zent::platform
