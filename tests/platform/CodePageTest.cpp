#include "platform/CodePage.h"

#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(CodePage, KeepsWhatTheCodePageHas) {
    for (const char* text : {"", "plain ASCII\r\n", "gr\xC3\xBC\xC3\x9F"}) {
        EXPECT_EQ(toAnsi(fromAnsi(text)), text);
    }
    EXPECT_EQ(fromAnsi("A~"), u"A~");
    EXPECT_EQ(fromAnsi(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
    EXPECT_EQ(toAnsi(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

} // namespace
} // namespace zent::test
