#include <filesystem>

#include <dlfcn.h>

#include "platform/Files.h"
#include "platform/posix/Environment.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "zent27.h"

namespace zent::test {
namespace {

using namespace platform;

namespace fs = std::filesystem;

TEST(PosixModulePath, IsAsLongAsItIs) {
    const TemporaryFolder scratch;
    const fs::path folder = scratch.path() / std::string(200, 'a') / std::string(200, 'b');
    fs::create_directories(folder);
    const fs::path companions = getDriverDirectory();
    for (const char* const file : {"libzent27.so", "zenres27.dll", "ordo-v02025.dtd"}) {
        fs::copy_file(companions / file, folder / file);
    }
    void* const library = dlopen((folder / "libzent27.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    const auto open = reinterpret_cast<decltype(&fnOpenSession)>(dlsym(library, "fnOpenSession"));
    const auto close =
        reinterpret_cast<decltype(&fnCloseSession)>(dlsym(library, "fnCloseSession"));
    ZentSessionType session = nullptr;
    EXPECT_EQ(open(ZENT_INTERFACE_VERSION, 6, ZENT_PDL_MONOCHROME_PCL, ZENT_INSTRUCTIONS_BY_MODEL,
                   1, nullptr, 1, &session),
              ZENT_OK);
    EXPECT_EQ(close(&session), ZENT_OK);
    dlclose(library);
}

} // namespace
} // namespace zent::test
