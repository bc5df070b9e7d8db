#include "platform/LibraryEntry.h"

#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

TEST(LibraryEntryTest, TracesWhatTheLoaderSays) {
    const TraceCapture trace;
    platform::libraryHooks.onThreadDetach();
    platform::libraryHooks.onProcessDetach();
    EXPECT_EQ(TraceCapture::text(),
              "DllMain(DLL_THREAD_DETACH)\r\nDllMain(DLL_PROCESS_DETACH)\r\n");
}

} // namespace
} // namespace zent::test
