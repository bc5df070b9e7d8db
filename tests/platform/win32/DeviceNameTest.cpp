#include "platform/win32/DeviceName.h"

#include <ranges>

#include "platform/LockedFile.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

/// Of paths between upright strokes, those that name a device, or those that don't.
std::u16string select(std::u16string_view paths, bool areDevices) {
    std::u16string selected;
    for (const auto part : std::views::split(paths, u'|')) {
        const std::u16string path(part.begin(), part.end());
        selected += isDeviceName(path) == areDevices ? path + u'|' : u"";
    }
    return selected;
}

TEST(DeviceName, IsKnownInEachSpelling) {
    EXPECT_EQ(select(u"NUL|nul|Aux|con|PRN|COM1|lpt9|COM\u00B9|lpt\u00B3|CONIN$|conout$|CLOCK$|"
                     u"NUL.txt|com1.tar.gz|AUX |AUX .xml|NUL. .|COM1:|NUL:stream|C:NUL|"
                     u"C:\\a\\nul|a/COM2.xml|..\\prn|C:\\a\\NUL\\|\\\\.\\COM20|//./pipe/a|"
                     u"\\\\?\\COM20|\\\\?\\pipe\\a|\\??\\C:\\a|\\\\?\\GLOBALROOT\\Device\\Null|"
                     u"\\\\server\\share\\aux",
                     false),
              u"");
    EXPECT_EQ(select(u"|C:|C:\\|\\\\|NULL|a.NUL|COM|COM0|COM10|LPTX| NUL|com1-a.xml|NUL\\a.xml|"
                     u"C:\\aux.d\\a|CONIN|\\\\?\\C:\\a.xml|\\\\?\\UNC\\server\\share\\a|"
                     u"COM\u2074|\\\\server\\share\\a.xml|\\\\?\\Volume{0}\\a",
                     true),
              u"");
}

TEST(DeviceName, IsNeverOpened) {
    const ScratchFolder folder;
    for (const CXString& path : {CXString(u"NUL"), CXString(u"nul.xml"), CXString(u"CONOUT$"),
                                 CXString(u"\\\\.\\NUL"), folder.file("NUL")}) {
        EXPECT_FALSE(OpenFile::openForReading(path)) << path.toNarrow();
        EXPECT_FALSE(OpenFile::createForWriting(path)) << path.toNarrow();
        EXPECT_FALSE(LockedFile::lock(path)) << path.toNarrow();
        EXPECT_EQ(getFileKind(path), FileKind::unknown) << path.toNarrow();
        EXPECT_FALSE(getFileStamp(path).exists) << path.toNarrow();
        EXPECT_FALSE(deleteFile(path)) << path.toNarrow();
    }
}

} // namespace
} // namespace zent::test
