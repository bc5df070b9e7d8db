// What stands around the calls, and isn't seen through them on every system.

#include "ZENT_API/CachedOutput.h"
#include "ZENT_API/ModuleDirectory.h"
#include "platform/LibraryEntry.h"
#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

TEST(CachedOutputTest, AKeyIsATextOrANumberInDecimal) {
    CachedOutput cache;
    EXPECT_FALSE(cache.isFor(CXString())); // for no key at all
    cache.setKey(u"");
    EXPECT_TRUE(cache.isFor(CXString()));
    cache.setKeyFromNumber(0xFFFFFFFF);
    EXPECT_TRUE(cache.isFor(0xFFFFFFFFU) && cache.isFor(CXString(u"-1")));
    cache.setKey(u"Report.doc");
    EXPECT_FALSE(cache.isFor(CXString(u"report.doc")));
    cache.clear();
    EXPECT_FALSE(cache.isFor(CXString(u"Report.doc")) || cache.isFor(CXString()));
}

TEST(LibraryEntryTest, TracesWhatTheLoaderSays) {
    const TraceCapture trace;
    platform::libraryHooks.onThreadDetach();
    platform::libraryHooks.onProcessDetach();
    EXPECT_EQ(TraceCapture::text(),
              "DllMain(DLL_THREAD_DETACH)\r\nDllMain(DLL_PROCESS_DETACH)\r\n");
}

TEST(ModuleDirectoryTest, APathIsCutAfterItsLastSeparator) {
    for (const auto& [path, directory] : Rows<const char16_t*, const char16_t*>{
             {u"C:\\Program Files\\Tickets\\ZENT27.dll", u"C:\\Program Files\\Tickets\\"},
             {u"C:\\Tickets\\", u"C:\\Tickets\\"},
             {u"ZENT27.dll", u"Z"}, // no separator: the first character stays
             {u"C:/Tickets/ZENT27.dll", u"C"},
             {u"", u""}}) {
        EXPECT_EQ(cutToDirectory(path, u'\\'), directory);
    }
    EXPECT_EQ(cutToDirectory(u"/usr/lib/lib\\zent27.so", u'/'), u"/usr/lib/");
}

} // namespace
} // namespace zent::test
