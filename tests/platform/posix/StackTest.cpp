// What the calls need of the stack of a thread.

#include <cstring>

#include <pthread.h>
#include <sys/mman.h>

#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "support/EveryCall.h"
#include "support/LibraryTesting.h"
#include "support/ScratchUser.h"

namespace zent::test {
namespace {

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
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs a stack of its own size";
#endif
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

} // namespace
} // namespace zent::test
