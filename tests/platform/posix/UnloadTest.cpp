// A host that loads the library, uses it and unloads it, again and again.

#include <dlfcn.h>

#include "support/MemoryInUse.h"
#include "support/TestFile.h"
#include "support/Testing.h"
#include "zent27.h"

namespace zent::test {
namespace {

template <typename Call>
Call* find(void* library, const char* name) {
    return reinterpret_cast<Call*>(dlsym(library, name));
}

void importOnce(const std::string& ticket) {
    void* const library = dlopen("./libzent27.so", RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    auto* const open = find<decltype(fnOpenSession)>(library, "fnOpenSession");
    auto* const import = find<decltype(fnImportJobTicket)>(library, "fnImportJobTicket");
    auto* const close = find<decltype(fnCloseSession)>(library, "fnCloseSession");
    ZentSessionType session = nullptr;
    ZentBool problems = 0;
    ZentBool applied = 0;
    EXPECT_EQ(open(27, 1, 2, ZENT_INSTRUCTIONS_XML, 1, nullptr, 1, &session), ZENT_OK);
    EXPECT_EQ(import(session, ticket.data(), static_cast<std::uint32_t>(ticket.size()),
                     ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems,
                     &applied),
              ZENT_OK);
    EXPECT_EQ(close(&session), ZENT_OK);
    EXPECT_EQ(dlclose(library), 0);
}

TEST(UnloadTest, LoadingAndUnloadingTheLibraryTakesNoMemory) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer keeps what is released for a while";
#endif
    const std::string ticket = readTestFile("../examples/exception-pages-with-inserts.xml");
    std::int64_t memoryOfFirst = 0;
    for (int cycle = 0; cycle < 1000; ++cycle) {
        importOnce(ticket);
        memoryOfFirst = cycle == 100 ? readMemoryInUse() : memoryOfFirst;
    }
    EXPECT_LT(readMemoryInUse() - memoryOfFirst, 2 << 10);
}

} // namespace
} // namespace zent::test
