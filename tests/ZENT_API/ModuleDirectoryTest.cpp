#include <gtest/gtest.h>

#include "PrintText.h"
#include "ZENT_API/ModuleDirectory.h"

namespace zent::test {
namespace {

TEST(ModuleDirectoryTest, APathIsCutBehindItsLastSeparator) {
    struct Row {
        const char16_t* path;
        const char16_t* directory;
    };
    const Row rows[] = {
        {u"C:\\Program Files\\Tickets\\ZENT27.dll", u"C:\\Program Files\\Tickets\\"},
        {u"C:\\Tickets\\", u"C:\\Tickets\\"},
        {u"\\ZENT27.dll", u"\\"},
        {u"ZENT27.dll", u"Z"}, // no separator: the first character stays
        {u"C:/Tickets/ZENT27.dll", u"C"},
        {u"", u""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(cutToDirectory(row.path, u'\\'), row.directory);
    }
    EXPECT_EQ(cutToDirectory(u"/usr/lib/lib\\zent27.so", u'/'), u"/usr/lib/");
}

} // namespace
} // namespace zent::test
