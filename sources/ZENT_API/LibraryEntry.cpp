// The hooks that run when the system's loader unloads the library, or reports the end of a thread.

#include "platform/LibraryEntry.h"

#include "ocore/Faults/Trace.h"

namespace zent {

namespace {

void onProcessDetach() {
    trace::output(u"DllMain(DLL_PROCESS_DETACH)\r\n");
    trace::endOutput();
    trace::endSettings();
}

void onThreadDetach() { trace::output(u"DllMain(DLL_THREAD_DETACH)\r\n"); }

[[maybe_unused]] const bool areHooksSet = [] {
    platform::libraryHooks = {.onProcessDetach = onProcessDetach, .onThreadDetach = onThreadDetach};
    return true;
}();

} // namespace

} // namespace zent
