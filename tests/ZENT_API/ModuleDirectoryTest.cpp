#include "ZENT_API/ModuleDirectory.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(ModuleDirectoryTest, APathIsCutBehindItsLastSeparator) {
    for (const auto& [path, directory] : Rows<const char16_t*, const char16_t*>{
             {u"C:\\Program Files\\Tickets\\ZENT27.dll", u"C:\\Program Files\\Tickets\\"},
             {u"C:\\Tickets\\", u"C:\\Tickets\\"},
             {u"\\ZENT27.dll", u"\\"},
             {u"ZENT27.dll", u"Z"}, // no separator: the first character stays
             {u"C:/Tickets/ZENT27.dll", u"C"},
             {u"", u""},
         }) {
        EXPECT_EQ(cutToDirectory(path, u'\\'), directory);
    }
    EXPECT_EQ(cutToDirectory(u"/usr/lib/lib\\zent27.so", u'/'), u"/usr/lib/");
}

} // namespace
} // namespace zent::test
