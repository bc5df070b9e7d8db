#include "ocore/Text/CXString.h"

#include "ocore/Text/FormatFakeModule.h"
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
    CXString released;
    released.getBuffer(100)[0] = u'\0';
    released.releaseBuffer();
    CXString assigned(u"text");
    assigned = noNarrow;
    for (const CXString& text : {CXString(noWide), CXString(noNarrow), CXString(u""), CXString(""),
                                 CXString(noNarrow, 5), CXString(std::u16string_view()), cleared,
                                 released, assigned, CXString(u"abc").mid(3), empty + empty}) {
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

TEST(CXString, CopiesALockedString) {
    CXString locked(u"tray 1");
    char16_t* const buffer = locked.lockBuffer();
    const CXString copied = locked;
    CXString assigned;
    assigned = locked;
    buffer[5] = u'2';
    EXPECT_EQ(locked + copied + assigned, u"tray 2tray 1tray 1");
    locked = assigned; // goes into the locked buffer
    EXPECT_EQ(locked.c_str(), buffer);
    locked.unlockBuffer();
    EXPECT_EQ(CXString(locked).c_str(), buffer);

    CXString lockedEmpty;
    lockedEmpty.lockBuffer();
    EXPECT_NE(lockedEmpty.c_str(), empty.c_str());
    EXPECT_EQ(CXString(lockedEmpty).c_str(), empty.c_str());
    lockedEmpty.unlockBuffer();
    EXPECT_EQ(lockedEmpty.c_str(), empty.c_str());
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

TEST(CXString, GrowsByAppendingUnitByUnit) {
    CXString text;
    std::u16string expected;
    for (int i = 0; i < 3000; ++i) {
        expected += static_cast<char16_t>(u'!' + i % 90);
        text += expected.back();
    }
    EXPECT_EQ(text, std::u16string_view(expected));
    EXPECT_EQ(text.c_str()[3000], u'\0');
}

TEST(CXString, ComparesUnitByUnit) {
    EXPECT_NE(CXString(std::u16string_view(u"a\0b", 3)), CXString(std::u16string_view(u"a\0c", 3)));
    EXPECT_NE(CXString(u"abc"), CXString(u"ABC"));
    EXPECT_NE(CXString(u"abc"), u"abcd");
    EXPECT_LT(CXString(u"ab"), CXString(u"abc"));
    EXPECT_GT(CXString(u"\uFF21"), CXString(u"\U0001F600")); // by unit, not by character
}

TEST(CXString, GivesParts) {
    const CXString text(u"page-overrides");
    const Rows<CXString, CXString> rows{
        {text.left(4), u"page"},     {text.left(-1), u""},
        {text.right(99), text},      {text.right(9), u"overrides"},
        {text.mid(5, 4), u"over"},   {text.mid(-3, 4), u"page"},
        {text.mid(9, 99), u"rides"}, {text.mid(2, INT32_MAX), u"ge-overrides"},
        {text.mid(2, -1), u""},      {text.mid(INT32_MIN), text}};
    for (const auto& [part, expected] : rows) {
        EXPECT_EQ(part, expected);
    }
}

TEST(CXString, FindsPositions) {
    const CXString text(u"a4-a4-a3");
    EXPECT_EQ(text.find(u'a', 1), 3);
    EXPECT_EQ(text.find(u'a', -7), 0);
    EXPECT_EQ(text.find(u'a', 8), -1);
    EXPECT_EQ(text.find(u"a4", 1), 3);
    EXPECT_EQ(text.find(u"a4", 4), -1);
    EXPECT_EQ(text.find(u"", 8), 8);
    EXPECT_EQ(text.find(u"", 9), -1) << "a start beyond the length finds nothing";
    EXPECT_EQ(text.findLast(u'a'), 6);
    EXPECT_EQ(CXString().findLast(u'x'), -1);
}

TEST(CXString, Trims) {
    CXString text(u"\u3000\t a b \r\n\u00A0");
    const CXString keep = text;
    text.trim();
    EXPECT_EQ(text, u"a b");
    EXPECT_EQ(keep.length(), 10);
    CXString zeros(u"00700");
    zeros.trimLeft(u'0');
    EXPECT_EQ(zeros, u"700");
    zeros.trimRight(u"07");
    EXPECT_TRUE(zeros.isEmpty());
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

TEST(CXString, LoadsStringsOfAnyLength) {
    for (std::size_t length : {0U, 1U, 253U, 254U, 255U, 256U, 510U, 511U, 512U, 5000U, 65535U}) {
        const std::u16string expected(length, u'x');
        const FakeResourceModule module({{1, expected}});
        CXString text(u"before");
        EXPECT_EQ(text.LoadString(module, 1), length > 0);
        EXPECT_EQ(text, std::u16string_view(expected));
        EXPECT_FALSE(text.LoadString(module, 2));
        EXPECT_TRUE(text.isEmpty());
    }
}

TEST(CXString, ReplacesAll) {
    const Rows<const char16_t*, const char16_t*, const char16_t*, const char16_t*> rows{
        {u"a,b,,c", u",", u"; ", u"a; b; ; c"},
        {u"aaaa", u"aa", u"b", u"bb"},
        {u"aabb", u"ab", u"", u"ab"},
        {u"abc", u"x", u"y", u"abc"},
        {u"abc", u"", u"y", u"abc"},
        {u"a&b", u"&", u"&amp;", u"a&b"},
    };
    for (const auto& [source, search, replacement, expected] : rows) {
        EXPECT_EQ(replaceAll(CXString(source), search, replacement), expected);
    }
}

} // namespace
} // namespace zent::test
