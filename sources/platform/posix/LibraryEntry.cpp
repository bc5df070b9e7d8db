#include "platform/LibraryEntry.h"

namespace zent::platform {

namespace {

/// The loader's call when the library goes. It may come after static objects are destroyed, so that
/// nothing that it calls may need one. The ends of threads aren't reported on this system.
[[gnu::destructor]] void onUnload() { libraryHooks.onProcessDetach(); }

} // namespace

} // namespace zent::platform
