#include "ocore/File.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Exceptions.h"

namespace zent {
namespace {

class FileTest : public testing::Test {
protected:
    const std::filesystem::path m_path = std::filesystem::path(testing::TempDir()) / "FileTest.bin";
    const CXString m_name = CXString(m_path.string().c_str());

    void write(const std::string& content) const {
        std::ofstream(m_path, std::ios::binary) << content;
    }
    void TearDown() override { std::filesystem::remove(m_path); }
};

TEST_F(FileTest, ReadsWholeFiles) {
    std::string large(300'000, 'x');
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<char>(i * 7 % 251);
    }
    for (const std::string& content : {std::string("a\r\n\0\x1A", 5), std::string(), large}) {
        write(content);
        ByteBuffer buffer("before", 6);
        File::read(m_name, buffer);
        EXPECT_EQ(buffer, ByteBuffer(content.data(), content.size()));
        EXPECT_TRUE(File::exists(m_name));
    }
}

TEST_F(FileTest, SaysWhatItCannotOpen) {
    ByteBuffer buffer("before", 6);
    for (const CXString& name : {m_name, CXString(), CXString(testing::TempDir().c_str())}) {
        EXPECT_FALSE(File::exists(name)) << name.toNarrow();
        try {
            File::read(name, buffer);
            ADD_FAILURE() << name.toNarrow();
        } catch (const CreateFileForReadingException& exception) {
            EXPECT_EQ(exception.getMessage(),
                      u"File::read(): CreateFile() failed to open file " + name + u".\r\n");
        }
    }
    EXPECT_EQ(buffer, ByteBuffer("before", 6));
}

TEST_F(FileTest, RefusesWhatIsTooLarge) {
    write("x");
    std::filesystem::resize_file(m_path, File::largestSize + 1);
    ByteBuffer buffer;
    EXPECT_THROW(File::read(m_name, buffer), ReadFileException);
    EXPECT_TRUE(buffer.isEmpty());
}

} // namespace
} // namespace zent
