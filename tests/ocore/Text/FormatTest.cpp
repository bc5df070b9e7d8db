// CXString::Format and its kin.

#include <cmath>
#include <cstdio>
#include <limits>

#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

void check(const Rows<CXString, const char16_t*>& rows) {
    for (const auto& [formatted, expected] : rows) {
        EXPECT_EQ(formatted, expected);
    }
}

template <typename... Args>
CXString format(const char16_t* text, const Args&... args) {
    return CXString::Format(text, args...);
}

enum class Colour : std::uint8_t { red = 7 };

TEST(Format, TakesTextsOfEveryKind) {
    const char16_t* const noWide = nullptr;
    const char* const noNarrow = nullptr;
    const CXString text(u"staple");
    check({
        {format(u"%s|%S", u"wide", "narrow"), u"wide|narrow"},
        {format(u"%S|%s", u"wide", "narrow"), u"wide|narrow"},
        {format(u"%s|%ls|%hs|%Fs|%Ns", text, text, text, text, text),
         u"staple|staple|staple|staple|staple"},
        {format(u"%s|%S|%s", noWide, noNarrow, nullptr), u"(null)|(null)|(null)"},
        {format(u"%.3s|%8s|%-8s|%8.2s|%.0s|%.*s", noWide, text, text, text, text, 4, text),
         u"(nu|  staple|staple  |      st||stap"},
        {format(u"%c%C%hc%lc|%3c|%-3c|", u'\u20AC', 'b', 'c', u'd', u'e', u'f'),
         u"\u20ACbcd|  e|f  |"},
        {formatText("%s of %S is %d%%\r\n", text, "narrow", 5), u"staple of narrow is 5%\r\n"},
        {format(u"%.2s|%.1s|%.3s|%.1s", u"a\U0001F5A8", u"\U0001F5A8", u"a\U0001F5A8b", u"\xD83Dx"),
         u"a||a\U0001F5A8|\xD83D"}, // a pair isn't cut in half
    });
}

TEST(Format, CutsNumbersToTheirSize) {
    const auto wide = 0x1234567890ABCDEFULL;
    const void* const pointer = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(0xBEEFU));
    check({
        {format(u"0x%lx|0x%x|0x%I64X|0x%hx", wide, wide, wide, wide),
         u"0x90abcdef|0x90abcdef|0x1234567890ABCDEF|0xcdef"},
        {format(u"%ld|%d|%I64d|%hd", -1LL - 0xFFFFFFFFLL, 0xFFFFFFFFLL, -1, 0xFFFF), u"0|-1|-1|-1"},
        {format(u"%lu|%u|%hu|%I64u", -1, -1, -1, -1),
         u"4294967295|4294967295|65535|18446744073709551615"},
        {format(u"%d|%I64d", INT32_MIN, INT64_MIN), u"-2147483648|-9223372036854775808"},
        {format(u"%d %u %d", true, Colour::red, u'A'), u"1 7 65"},
        {format(u"%p", pointer), sizeof(void*) == 8 ? u"000000000000BEEF" : u"0000BEEF"},
    });
}

TEST(Format, TakesExtentsFromArguments) {
    check({
        {format(u"%*d|%-*d|%*d|", 4, 1, 4, 2, -4, 3), u"   1|2   |3   |"},
        {format(u"%.*f|%.*f|%*.*f", 1, 2.5, -1, 2.5, 6, 2, 2.5), u"2.5|2.500000|  2.50"},
        {format(u"%.d|%.*d|%.s|", 0, 0, 0, u"x"), u"|||"},
    });
    EXPECT_EQ(format(u"%*d", INT32_MIN, 5).length(), 65535);
    EXPECT_EQ(format(u"%99999999999999999999d", 5).length(), 65535);
    EXPECT_EQ(format(u"%.99999d", 5).length(), 65535);
    EXPECT_EQ(format(u"%.99999f", 1e308).length(), 309 + 1 + 65535);
    EXPECT_EQ(format(u"%.99999g", 0.1).length(), 57) << "all digits of the double, no zeros";
}

TEST(Format, LeavesWhatItCannotFormat) {
    check({
        {format(u"%d %d", 1), u"1 %d"},
        {format(u"%s %5.2lf %*d", u"a"), u"a %5.2lf %*d"},
        {format(u"%d|%d", u"text", 5), u"%d|5"},
        {format(u"%-8s|%s|%s", 5, 2.5, u"next"), u"%-8s|%s|next"},
        {format(u"%d|%c|%f|%p|%e", 2.5, u"t", u"t", 2.5, "t"), u"%d|%c|%f|%p|%e"},
        {format(u"%*d|%d", u"text", 5), u"%*d|5"},
        {format(u"100% sure, %y, %5"), u"100% sure, %y, %5"},
        {format(u"%I32d%F", 5), u"%I32d%F"},
        {format(u"[%n]%d", 1, 2), u"[]2"},
    });
}

TEST(Format, BoundsTheWholeText) {
    std::u16string hostile;
    for (int i = 0; i < 100000; ++i) {
        hostile += u"%60000d%.60000f";
    }
    EXPECT_EQ(format(hostile.c_str(), 1).length(), 1 << 20);
    const std::u16string longText((1 << 20) + 5, u'x');
    EXPECT_EQ(format(u"%s%s", longText, longText).length(), 1 << 20);
}

/// What the C library writes for a narrow format.
template <typename T>
std::string reference(const std::string& format, T value) {
    std::vector<char> buffer(2000);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int length = std::snprintf(buffer.data(), buffer.size(), format.c_str(), value);
#pragma GCC diagnostic pop
    return {buffer.data(), static_cast<std::size_t>(length)};
}

/// All combinations of flags, widths and precisions before each of the conversions, without those
/// that the C standard leaves undefined.
std::vector<std::string> specifiers(const std::string& conversions, const std::string& flags) {
    std::vector<std::string> all;
    for (unsigned chosen = 0; chosen < 1U << flags.size(); ++chosen) {
        std::string some = "%";
        for (std::size_t i = 0; i < flags.size(); ++i) {
            some += (chosen >> i & 1) != 0 ? flags.substr(i, 1) : "";
        }
        for (const char* width : {"", "1", "12", "30"}) {
            for (const char* precision : {"", ".", ".1", ".3", ".17"}) {
                for (char conversion : conversions) {
                    all.push_back(some + width + precision + conversion);
                }
            }
        }
    }
    return all;
}

template <typename T>
void compareWithReference(const std::string& conversions, const std::string& flags,
                          const std::vector<T>& values) {
    for (const std::string& specifier : specifiers(conversions, flags)) {
        for (const T value : values) {
            EXPECT_EQ(formatText(specifier.c_str(), value).toNarrow(), reference(specifier, value))
                << specifier << " of " << value;
        }
    }
}

TEST(Format, AgreesWithTheCLibraryOnIntegers) {
    const std::vector<int> values{0, 1, -1, 8, 255, INT32_MAX, INT32_MIN};
    compareWithReference("di", "-+ 0", values);
    compareWithReference("uo", "-0", values);
    compareWithReference("xX", "#-0", values);
    // Not every C library gets "%#.o" of 0 right.
    EXPECT_EQ(format(u"%#o|%#.o|%#o|%#.3o|%#.2o", 8, 0, 0, 8, 8), u"010|0|0|010|010");
}

TEST(Format, AgreesWithTheCLibraryOnFloats) {
    const double infinity = std::numeric_limits<double>::infinity();
    compareWithReference<double>("efgEG", "#-+ 0",
                                 {0.0, -0.0, 1.0, 0.5, 2.5, -1.0 / 3, 9.9999, 99999.95, 1e5, 1e-4,
                                  9.5e-5, 123456789.0, 1e308, 5e-324, infinity, -infinity});
}

TEST(FormatResource, TakesItsFormatFromAStringTable) {
    useResourceLibrary();
    const ResourceLibrary library;
    EXPECT_EQ(CXString::FormatResource(library.getModule(), IDS_CUSTOM_VALUE, u"red"),
              u"red (custom)");
    EXPECT_EQ(CXString::FormatResource(library.getModule(), 1, u"red"), u"");
}

} // namespace
} // namespace zent::test
