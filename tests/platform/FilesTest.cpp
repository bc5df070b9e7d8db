#include "platform/Files.h"

#include <span>

#include "ocore/Resources/ByteBuffer.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

CXString temporary(const char16_t* name) { return CXString(testing::TempDir().c_str()) + name; }

bool writeFile(const CXString& path, std::string_view content) {
    const auto file = OpenFile::createForWriting(path);
    std::size_t done = 0;
    return file && file->write(std::as_bytes(std::span(content)), done) && done == content.size();
}

TEST(Files, WritesReadsAndDeletes) {
    for (const char16_t* name : {u"FilesTest.tmp", u"FilesTest gr\u00FC\u00DF \u65E5.tmp"}) {
        const CXString path = temporary(name);
        ASSERT_TRUE(writeFile(path, "longer than what follows"));
        ASSERT_TRUE(writeFile(path, "0123456789"));

        const auto file = OpenFile::openForReading(path);
        ASSERT_TRUE(file);
        std::uint64_t size = 0;
        EXPECT_TRUE(file->getSize(size));
        EXPECT_EQ(size, 10U);
        char buffer[20] = {};
        const auto bytes = std::as_writable_bytes(std::span(buffer));
        std::size_t done = 0;
        EXPECT_TRUE(file->read(bytes.first(4), done));
        EXPECT_EQ(std::string(buffer, done), "0123");
        EXPECT_TRUE(file->read(bytes, done));
        EXPECT_EQ(std::string(buffer, done), "456789");
        EXPECT_TRUE(file->read(bytes, done));
        EXPECT_EQ(done, 0U);
        EXPECT_FALSE(file->write(bytes.first(1), done)) << "is open for reading alone";
    }
    for (const char16_t* name : {u"FilesTest.tmp", u"FilesTest gr\u00FC\u00DF \u65E5.tmp"}) {
        EXPECT_TRUE(deleteFile(temporary(name)));
        EXPECT_FALSE(deleteFile(temporary(name)));
        EXPECT_FALSE(OpenFile::openForReading(temporary(name)));
    }
}

TEST(Files, RefusesPlacesThatAreNoFiles) {
    const CXString folder(testing::TempDir().c_str());
    EXPECT_FALSE(OpenFile::openForReading(folder));
    EXPECT_FALSE(OpenFile::createForWriting(folder));
    EXPECT_FALSE(OpenFile::createForWriting(temporary(u"no such folder/file")));
}

TEST(Files, StampTellsOneStateFromAnother) {
    const CXString path = temporary(u"FilesTest stamp.tmp");
    EXPECT_EQ(getFileStamp(path), FileStamp());
    writeFile(path, "content");
    const FileStamp first = getFileStamp(path);
    EXPECT_TRUE(first.exists);
    EXPECT_EQ(first.size, 7U);
    EXPECT_NE(first.modified, 0U);
    EXPECT_EQ(getFileStamp(path), first);
    writeFile(path, "longer content");
    EXPECT_NE(getFileStamp(path), first);
    deleteFile(path);
    EXPECT_FALSE(getFileStamp(path).exists);
}

} // namespace
} // namespace zent::test
