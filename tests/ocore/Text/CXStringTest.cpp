#include "ocore/Text/CXString.h"

#include <thread>

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const CXString madeBeforeMain(u"made while statics initialise");
const CXString empty;

TEST(CXString, IsEmptyFromNothing) {
    EXPECT_EQ(madeBeforeMain.length(), 29);
    const char16_t* const noWide = nullptr;
    const char* const noNarrow = nullptr;
    CXString cleared(u"text");
    cleared.clear();
    CXString assigned(u"text");
    assigned = noNarrow;
    for (const CXString& text : {CXString(noWide), CXString(noNarrow), CXString(u""), CXString(""),
                                 CXString(noNarrow, 5), CXString(std::u16string_view()), cleared,
                                 assigned, CXString(u"abc").mid(3), empty + empty}) {
        EXPECT_TRUE(text.isEmpty());
        EXPECT_EQ(text.c_str(), empty.c_str()) << "must share the empty block";
        EXPECT_EQ(text, noWide);
    }
}

TEST(CXString, SharesUntilChanged) {
    CXString a(u"duplex");
    const CXString b = a;
    CXString c;
    c = b;
    EXPECT_EQ(a.c_str(), b.c_str());
    EXPECT_EQ(c.c_str(), b.c_str());
    a += u'!';
    c.getBuffer(6)[0] = u'D';
    c.releaseBuffer();
    EXPECT_EQ(a + b + c, u"duplex!duplexDuplex");
    const CXString moved = std::move(c);
    EXPECT_EQ(moved, u"Duplex");
    EXPECT_TRUE(c.isEmpty()); // NOLINT(bugprone-use-after-move): moved-from strings are empty
}

TEST(CXString, TakesPartsOfItself) {
    CXString text(u"abcdef");
    text = text.view().substr(2);
    text += text;
    text += text.c_str() + 6;
    EXPECT_EQ(text, u"cdefcdefef");
    const CXString keep = text;
    text = text.view().substr(8);
    text = *&text;
    EXPECT_EQ(text, u"ef");
    while (text.length() < 3000) {
        text += text;
    }
    EXPECT_EQ(text.length(), 4096);
    EXPECT_EQ(text.right(3), u"fef");
}

TEST(CXString, GivesItsBufferForWriting) {
    CXString text(u"abc");
    EXPECT_EQ(std::u16string_view(text.getBuffer(5)), u"abc");
    std::u16string_view(u"12345").copy(text.getBuffer(5), 5);
    text.releaseBuffer(5);
    EXPECT_EQ(text, u"12345");
    text.getBuffer(0)[2] = u'\0';
    text.releaseBuffer();
    EXPECT_EQ(text, u"12");
    std::fill_n(text.getBuffer(600), 600, u'x');
    text.releaseBuffer(INT32_MAX);
    EXPECT_GE(text.length(), 600);
    EXPECT_LE(text.length(), 1024) << "no further than the buffer";
}

TEST(CXString, IsSharedAndChangedByThreads) {
    const CXString shared(u"one text for all threads");
    std::vector<std::thread> threads;
    for (const char16_t unit : {u'a', u'b', u'c', u'd'}) {
        threads.emplace_back([&shared, unit] {
            for (int i = 0; i < 20000; ++i) {
                CXString mine(shared);
                const CXString other = mine;
                mine += unit;
                ASSERT_TRUE(mine.length() == shared.length() + 1 && other == shared);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(shared, u"one text for all threads");
}

} // namespace
} // namespace zent::test
