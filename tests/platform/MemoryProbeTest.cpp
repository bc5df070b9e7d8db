#include "platform/MemoryProbe.h"

#include <atomic>
#include <thread>

#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

const void* at(std::uintptr_t address) {
    return reinterpret_cast<const void*>(address); // NOLINT(performance-no-int-to-ptr)
}

const char readOnly[20'000] = {1};

TEST(MemoryProbe, TellsWritableMemory) {
    std::vector<char> heap(100'000, 'x');
    static std::uint64_t global = 5;
    int local = 7;
    EXPECT_TRUE(isWritableMemory(heap.data(), heap.size()));
    EXPECT_TRUE(isWritableMemory(heap.data() + 1, 1));
    EXPECT_TRUE(isWritableMemory(&global, sizeof(global)));
    EXPECT_TRUE(isWritableMemory(&local, sizeof(local)));
    EXPECT_EQ(heap, std::vector<char>(100'000, 'x'));
    EXPECT_EQ(global, 5U);
    EXPECT_EQ(local, 7);
}

TEST(MemoryProbe, RefusesWhatCannotBeWritten) {
    constexpr std::uintptr_t last = UINTPTR_MAX;
    int local = 0;
    EXPECT_FALSE(isWritableMemory(nullptr, 0));
    EXPECT_FALSE(isWritableMemory(nullptr, 8));
    for (const std::uintptr_t address :
         {std::uintptr_t{1}, std::uintptr_t{8}, std::uintptr_t{0xFFF}, last, last - 7, last / 2}) {
        EXPECT_FALSE(isWritableMemory(at(address), 8)) << std::hex << address;
    }
    EXPECT_FALSE(isWritableMemory(readOnly, sizeof(readOnly)));
    EXPECT_FALSE(isWritableMemory(readOnly + 10'000, 1));
    EXPECT_FALSE(isWritableMemory(reinterpret_cast<const void*>(&isWritableMemory), 8));
    EXPECT_FALSE(isWritableMemory(&local, SIZE_MAX)) << "runs past the last address";
}

TEST(MemoryProbe, LeavesOtherThreadsWritesAlone) {
    struct Shared {
        std::uint64_t unchanging = 1;
        std::atomic<std::uint32_t> number = 0;
    };
    constexpr std::uint32_t rounds = 200'000;
    const auto shared = std::make_unique<Shared>();
    std::thread writer([&] {
        for (std::uint32_t i = 0; i < rounds; ++i) {
            ++shared->number;
        }
    });
    for (int i = 0; i < 10'000; ++i) {
        EXPECT_TRUE(isWritableMemory(shared.get(), sizeof(Shared)));
    }
    writer.join();
    EXPECT_EQ(shared->number, rounds);
}

} // namespace
} // namespace zent::test
