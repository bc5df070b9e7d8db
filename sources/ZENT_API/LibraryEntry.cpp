#include "platform/LibraryEntry.h"

#include "ocore/Faults/Trace.h"

namespace zent::platform {

void onProcessDetach() {
    trace::output(u"DllMain(DLL_PROCESS_DETACH)\r\n");
    trace::endOutput();
    trace::endSettings();
}

void onThreadDetach() { trace::output(u"DllMain(DLL_THREAD_DETACH)\r\n"); }

} // namespace zent::platform
