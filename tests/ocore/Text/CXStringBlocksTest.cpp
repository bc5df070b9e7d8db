#include <cstring>
#include <set>
#include <thread>

#include "ocore/Text/StringBlock.h"
#include "ocore/Text/StringBlockPool.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(StringBlock, HasTheSmallestCapacityOfItsClasses) {
    const std::vector<std::size_t> classes{6,  7,  8,  9,  10,  11,  12, 16,
                                           20, 24, 32, 64, 128, 256, 512};
    for (std::size_t wanted = 0; wanted < 600; ++wanted) {
        StringBlock* const block = StringBlock::allocate(wanted);
        const auto smallest = std::lower_bound(classes.begin(), classes.end(), wanted);
        const bool pooled = StringBlock::usesPools && smallest != classes.end();
        EXPECT_EQ(block->capacity, static_cast<std::int32_t>(pooled ? *smallest : wanted));
        EXPECT_EQ(block->count, 1);
        std::memset(block->text(), 0xFF, wanted * sizeof(char16_t));
        block->setLength(wanted);
        StringBlock::giveBack(block);
    }
    EXPECT_THROW(StringBlock::allocate(StringBlock::maximumCapacity + 1), std::bad_alloc);
}

TEST(StringBlockPool, HandsOutDistinctBlocksAndTakesThemAgain) {
    constexpr std::size_t blockSize = 30;
    constexpr std::size_t taken = 3 * StringBlockPool::blocksPerChunk + 1;
    StringBlockPool pool(blockSize);
    std::vector<unsigned char*> blocks;
    for (std::size_t i = 0; i < taken; ++i) {
        blocks.push_back(static_cast<unsigned char*>(pool.take()));
        std::memset(blocks.back(), static_cast<int>(i), blockSize);
    }
    for (std::size_t i = 0; i < taken; ++i) {
        EXPECT_EQ(std::count(blocks[i], blocks[i] + blockSize, static_cast<unsigned char>(i)),
                  static_cast<std::ptrdiff_t>(blockSize));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(blocks[i]) % alignof(void*), 0U);
    }
    const std::set<unsigned char*> before(blocks.begin(), blocks.end());
    for (unsigned char* block : blocks) {
        pool.giveBack(block);
    }
    for (std::size_t i = 0; i < taken; ++i) {
        EXPECT_EQ(before.count(static_cast<unsigned char*>(pool.take())), 1U);
    }
}

TEST(CXStringBlocks, AreSharedAndChangedFromSeveralThreads) {
    const CXString shared(u"one text for all threads");
    const auto work = [&shared](char16_t unit) {
        for (int i = 0; i < 20000; ++i) {
            CXString mine(shared);
            CXString other = mine;
            mine += unit;
            if (mine.length() != shared.length() + 1 || other != shared) {
                return false;
            }
        }
        return true;
    };
    std::vector<int> results(4);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < results.size(); ++i) {
        threads.emplace_back([&, i] { results[i] = work(static_cast<char16_t>(u'a' + i)); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(results, (std::vector<int>{1, 1, 1, 1}));
    EXPECT_EQ(shared, u"one text for all threads");
}

} // namespace
} // namespace zent::test
