#include "platform/win32/DeviceName.h"

#include "platform/LockedFile.h"
#include "support/LibraryTesting.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(DeviceName, IsKnownInEachSpelling) {
    for (const char16_t* const path : {
             u"NUL",
             u"nul",
             u"Aux",
             u"con",
             u"PRN",
             u"COM1",
             u"lpt9",
             u"COM\u00B9",
             u"lpt\u00B3",
             u"CONIN$",
             u"conout$",
             u"CLOCK$",
             u"NUL.txt",
             u"com1.tar.gz",
             u"AUX ",
             u"AUX .xml",
             u"NUL. .",
             u"COM1:",
             u"NUL:stream",
             u"C:NUL",
             u"C:\\a\\nul",
             u"a/COM2.xml",
             u"..\\prn",
             u"C:\\a\\NUL\\",
             u"\\\\.\\COM20",
             u"//./pipe/a",
             u"\\\\?\\COM20",
             u"\\\\?\\pipe\\a",
             u"\\??\\C:\\a",
             u"\\\\?\\GLOBALROOT\\Device\\Null",
             u"\\\\server\\share\\aux",
         }) {
        EXPECT_TRUE(isDeviceName(path)) << CXString(path).toNarrow();
    }
    for (const char16_t* const path : {
             u"",
             u"C:",
             u"C:\\",
             u"\\\\",
             u"NULL",
             u"a.NUL",
             u"COM",
             u"COM0",
             u"COM10",
             u"LPTX",
             u" NUL",
             u"com1-a.xml",
             u"NUL\\a.xml",
             u"C:\\aux.d\\a",
             u"CONIN",
             u"\\\\?\\C:\\a.xml",
             u"\\\\?\\UNC\\server\\share\\a",
             u"COM\u2074",
             u"\\\\server\\share\\a.xml",
             u"\\\\?\\Volume{0}\\a",
         }) {
        EXPECT_FALSE(isDeviceName(path)) << CXString(path).toNarrow();
    }
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
