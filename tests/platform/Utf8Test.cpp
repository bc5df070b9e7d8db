#include "platform/Utf8.h"

#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(Utf8, IsConvertedAndWhatIsNoneReplaced) {
    for (const auto& [narrow, wide] : Rows<const char*, const char16_t*>{
             {"\x7F\xC2\x80\xDF\xBF", u"\u007F\u0080\u07FF"},
             {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\u0800\uD7FF\uE000\uFFFF"},
             {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0010FFFF"},
             {"\xF0\x9F\x96\xA8!", u"\U0001F5A8!"},
         }) {
        EXPECT_EQ(fromUtf8(narrow), wide) << narrow;
        EXPECT_EQ(toUtf8(wide), narrow) << narrow;
    }
    for (const auto& [narrow, wide] : Rows<const char*, const char16_t*>{
             {"a\x80z", u"a\uFFFDz"},                           // no start
             {"a\xFFz", u"a\uFFFDz"},                           // never a byte of UTF-8
             {"\xC0\xAF", u"\uFFFD\uFFFD"},                     // overlong, 2 bytes
             {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},           // overlong, 3 bytes
             {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong, 4 bytes
             {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // surrogate
             {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last character
             {"\xE2\x82z", u"\uFFFDz"},                         // cut short
             {"\xE2\x82", u"\uFFFD"},                           // cut short by the end
             {"\xF0\x9F\x96\xC3\xA9", u"\uFFFD\u00E9"},         // cut short by the next one
         }) {
        EXPECT_EQ(fromUtf8(narrow), wide) << testing::PrintToString(narrow);
        std::string_view rest = narrow;
        EXPECT_EQ(takeUtf8(rest), std::u16string_view(wide).substr(0, *narrow == 'a' ? 1 : 0));
        EXPECT_EQ(rest.data(), narrow + (*narrow == 'a' ? 1 : 0));
    }
    const char16_t loneSurrogates[] = {0xDC00, u'a', 0xD800, u'b', 0xD800, 0xD800, 0xDC00, 0xDBFF};
    EXPECT_EQ(toUtf8(std::u16string_view(loneSurrogates, 8)),
              "\xEF\xBF\xBD"
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xF0\x90\x80\x80\xEF\xBF\xBD");
}

} // namespace
} // namespace zent::test
