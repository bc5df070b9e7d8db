// What the library takes of a process, and what is left when memory runs out or a host unloads it.

#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/StateData.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "support/AllocationFailure.h"
#include "support/EveryCall.h"
#include "support/LibraryTesting.h"
#include "support/MemoryInUse.h"

namespace zent::test {
namespace {

bool isWatched() { // a sanitizer has memory of its own, and keeps what is released for a while
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return true;
#else
    return false;
#endif
}

const char* const example = "../examples/exception-pages-with-inserts.xml";

/// Opens a session and imports a ticket, by the calls of a library.
template <typename Open, typename Import, typename Close>
ZentResult openAndImport(const std::string& ticket, std::uint32_t format, Open* open,
                         Import* import, Close* close) {
    ZentSessionType session = nullptr;
    ZentBool out = 0;
    ZentResult result = open(ZENT_INTERFACE_VERSION, 6, ZENT_PDL_MONOCHROME_PCL,
                             ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, &session);
    if (result == ZENT_OK) {
        result = import(session, ticket.data(), static_cast<std::uint32_t>(ticket.size()), format,
                        ZENT_APPLY_SILENT_REPAIR, nullptr, nullptr, &out, &out);
        close(&session);
    }
    return result;
}

ZentResult openAndImport(const std::string& ticket, std::uint32_t format = ZENT_FORMAT_XML) {
    return openAndImport(ticket, format, &fnOpenSession, &fnImportJobTicket, &fnCloseSession);
}

// ---- The first allocations ----------------------------------------------------------------------

// Memory may run out while a process uses the library for the first time, when tables are built and
// the XML system starts. Each allocation fails in a process of its own.

/// What a process ends with.
enum End : int { right, wrongResult, noSecondTime, hasNotFailed };

End failOnce(const std::string& ticket, std::uint32_t allocationsBefore) {
    ZentResult result = ZENT_OK;
    bool hasHappened = false;
    {
        const AllocationFailure failure(allocationsBefore);
        result = openAndImport(ticket);
        hasHappened = failure.hasHappened();
    }
    if (!hasHappened) {
        return hasNotFailed;
    }
    if (result != ZENT_OK && result != ZENT_ERR_OUT_OF_MEMORY) { // OK if it was for a trace or so
        return wrongResult;
    }
    return openAndImport(ticket) == ZENT_OK ? right : noSecondTime;
}

/// ZENT_TEST_ALLOCATIONS is how many there are from one that fails to the next; 1 takes a while.
TEST(FirstAllocationsTest, EachMayFailAndTheNextCallWorks) {
    const ScratchUser scratch;
    const std::string ticket = readTestFile(example);
    const char* const wanted = std::getenv("ZENT_TEST_ALLOCATIONS");
    const int step = wanted == nullptr ? 97 : std::atoi(wanted);
    int end = right;
    for (int before = 0; end != hasNotFailed; before += step) {
        const pid_t child = fork();
        if (child == 0) {
            _exit(failOnce(ticket, static_cast<std::uint32_t>(before)));
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFEXITED(status)) << "ended by a signal at allocation " << before;
        end = WEXITSTATUS(status);
        EXPECT_TRUE(end == right || end == hasNotFailed) << end << " at allocation " << before;
    }
}

// ---- The most memory ----------------------------------------------------------------------------

/// Imports a ticket in a process of its own; the most memory, in MiB, that it had, or 0 if it
/// didn't come to its end. What this process has itself is part of it.
long peakOfImport(const std::string& ticket, std::uint32_t format) {
    const pid_t child = fork();
    if (child == 0) {
        openAndImport(ticket, format);
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    const bool isEnded = wait4(child, &status, 0, &usage) == child && WIFEXITED(status);
    return isEnded ? usage.ru_maxrss / 1024 : 0;
}

std::string repeated(const std::string& text, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

/// A ticket whose content is little but references to an entity.
std::string bombOf(const std::string& piece, std::size_t references, const std::string& before = {},
                   const std::string& after = {}) {
    return "<!DOCTYPE ordo SYSTEM 'ordo-v02025.dtd' [<!ENTITY e \"" +
           repeated(piece, 65'000 / piece.size()) + "\">]><ordo><job-template-attributes>" +
           before + repeated("&e;", references) + after + "</job-template-attributes></ordo>";
}

std::string blobOf(const std::string& content) {
    ByteBuffer structure = StateData().getBytes();
    structure.append("<sordo>", 7);
    structure.append(content.data(), content.size());
    structure.append("</sordo>", 8);
    CompressedBuffer block(CompressedBuffer::defaultLevel);
    block.store(structure);
    const ByteBuffer& image = block.getImage();
    return std::string("\x08\0\0\0\x01\0\x08\x03", 8) +
           std::string(static_cast<const char*>(static_cast<const void*>(image.data())),
                       image.size());
}

TEST(PeakMemoryTest, OfADocumentGoesByItsSize) {
    if (isWatched()) {
        GTEST_SKIP();
    }
    const std::string overrides = "<page-overrides syntax='1setOf'>";
    const Rows<const char*, std::string> rows{
        {"instructions", bombOf("<?x?>", 1'000)},
        {"comments", bombOf("<!---->", 1'000)},
        {"lists", bombOf("<copies syntax='1setOf'> </copies>", 1'000)},
        {"overrides",
         bombOf("<value syntax='collection'> </value>", 30, overrides, "</page-overrides>")},
        {"text", bombOf("x", 258, "<job-name syntax='name'>", "</job-name>")},
        {"attribute", bombOf("x", 258, "<job-name syntax='", "'>x</job-name>")},
    };
    for (const auto& [name, ticket] : rows) {
        const long peak = peakOfImport(ticket, ZENT_FORMAT_XML);
        EXPECT_GT(peak, 0) << name;
        EXPECT_LE(peak, 128 + 10 * static_cast<long>(ticket.size()) / (1024 * 1024)) << name;
    }
}

TEST(PeakMemoryTest, OfABlobIsTheSameWhateverItExpandsTo) {
    if (isWatched()) {
        GTEST_SKIP();
    }
    const std::string blanks(40'000'000, ' ');
    const Rows<const char*, std::string> rows{
        {"instructions", blobOf(repeated("<?x?>" + std::string(45, ' '), 1'300'000))},
        {"text", blobOf("<f s='n'>" + std::string(66'000'000, 'x') + "</f>")},
        {"comment", blobOf("<!--" + std::string(66'000'000, 'x') + "-->")},
        {"lists", blobOf("<j s='s'>" + repeated("<V s='s'> </V>", 330'000) + "</j>")},
        {"attribute", blobOf("<f s='" + std::string(8'000'000, 'x') + "'>a</f>" + blanks)},
    };
    for (const auto& [name, blob] : rows) {
        const long peak = peakOfImport(blob, ZENT_FORMAT_STATE);
        EXPECT_GT(peak, 0) << name;
        EXPECT_LE(peak, 256) << name;
    }
}

// ---- The stack of a thread ----------------------------------------------------------------------

constexpr std::size_t kibibyte = 1024;

void* runWork(void* work) {
    (*static_cast<const std::function<void()>*>(work))();
    return nullptr;
}

/// The bytes that some work takes of the stack of a thread that has 64 KiB. The memory goes on
/// below the stack, so that more than that is measured as well.
std::size_t measureStack(const std::function<void()>& work) {
    constexpr std::size_t stackSize = 64 * kibibyte;
    constexpr std::size_t room = 1024 * kibibyte;
    constexpr int untouched = 0xa5;
    void* const memory =
        mmap(nullptr, room, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    auto* const bytes = static_cast<unsigned char*>(memory);
    std::memset(bytes, untouched, room);
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, bytes + room - stackSize, stackSize);
    pthread_t thread{};
    std::function<void()> copy = work;
    EXPECT_EQ(pthread_create(&thread, &attributes, runWork, &copy), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    std::size_t rest = 0;
    while (rest < room && bytes[rest] == untouched) {
        ++rest;
    }
    munmap(memory, room);
    return room - rest;
}

void expectLittleStack(const char* name, const std::function<void()>& work) {
    EXPECT_LE(measureStack(work), 48 * kibibyte) << name;
}

TEST(StackTest, NoCallTakesMoreThanTheHeaderSays) {
    if (isWatched()) {
        GTEST_SKIP();
    }
    const WindowSystemReplacement none(nullptr); // dialogs have the stack that their system needs
    const ScratchUser scratch;
    UserMessage::setPresenter([](platform::WindowHandle, std::u16string_view, std::u16string_view,
                                 std::uint32_t) { return messageAnswer::ok; });
    std::unique_ptr<Job> job;
    expectLittleStack("the first calls of a process", [&] { job = std::make_unique<Job>(); });
    for (const Call& call : allCalls()) {
        expectLittleStack(call.name, [&] { call.call(*job); });
    }
    job.reset();
    UserMessage::setPresenter(nullptr);
}

// ---- Loading and unloading ----------------------------------------------------------------------

template <typename Call>
Call* find(void* library, const char* name) {
    return reinterpret_cast<Call*>(dlsym(library, name));
}

/// What an application does with the library of a folder that it loads for a while.
void importOnce(const std::string& folder, const std::string& ticket) {
    void* const library = dlopen((folder + "/libzent27.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    EXPECT_EQ(openAndImport(ticket, ZENT_FORMAT_XML,
                            find<decltype(fnOpenSession)>(library, "fnOpenSession"),
                            find<decltype(fnImportJobTicket)>(library, "fnImportJobTicket"),
                            find<decltype(fnCloseSession)>(library, "fnCloseSession")),
              ZENT_OK);
    EXPECT_EQ(dlclose(library), 0);
}

TEST(UnloadTest, LoadingAndUnloadingTheLibraryTakesNoMemory) {
    if (isWatched()) {
        GTEST_SKIP();
    }
    const std::string ticket = readTestFile(example);
    std::int64_t memoryOfFirst = 0;
    for (int cycle = 0; cycle < 1000; ++cycle) {
        importOnce(".", ticket);
        memoryOfFirst = cycle == 100 ? readMemoryInUse() : memoryOfFirst;
    }
    EXPECT_LT(readMemoryInUse() - memoryOfFirst, 2 << 10);
}

TEST(UnloadTest, TheFoldersPathIsAsLongAsItIs) {
    const TemporaryFolder scratch;
    const std::filesystem::path folder =
        scratch.path() / std::string(200, 'a') / std::string(200, 'b');
    std::filesystem::create_directories(folder);
    for (const char* const file : {"libzent27.so", "zenres27.dll", "ordo-v02025.dtd"}) {
        std::filesystem::copy_file(std::filesystem::path(programFolder().toNarrow()) / file,
                                   folder / file);
    }
    importOnce(folder.string(), readTestFile(example));
}

} // namespace
} // namespace zent::test
