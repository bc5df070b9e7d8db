#include "ocore/Resources/File.h"

#include "support/LibraryTesting.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

TEST(FileTest, ReadsWholeFiles) {
    const ScratchFolder folder;
    for (const std::string& content : {std::string("a\r\n\0\x1A", 5), std::string()}) {
        folder.write("file", content);
        ByteBuffer buffer("before", 6);
        File::read(folder.file("file"), buffer);
        EXPECT_EQ(buffer, ByteBuffer(content.data(), content.size()));
        EXPECT_TRUE(File::exists(folder.file("file")));
    }
}

TEST(FileTest, SaysWhatItCannotRead) {
    const ScratchFolder folder;
    ByteBuffer buffer("before", 6);
    for (const CXString& name : {folder.file("none"), CXString(), folder.file("")}) {
        EXPECT_FALSE(File::exists(name)) << name.toNarrow();
        EXPECT_EQ(raised<CreateFileForReadingException>([&] { File::read(name, buffer); }),
                  "File::read(): CreateFile() failed to open file " + name.toNarrow() + ".\r\n");
    }
    EXPECT_EQ(buffer, ByteBuffer("before", 6));
    folder.write("large", "x");
    std::filesystem::resize_file(folder.path() / "large", File::largestSize + 1);
    EXPECT_THROW(File::read(folder.file("large"), buffer), ReadFileException);
}

} // namespace
} // namespace zent::test
