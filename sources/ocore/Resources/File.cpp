#include "ocore/Resources/File.h"

#include "ocore/Faults/Exceptions.h"
#include "platform/Files.h"

namespace zent {

void File::read(const CXString& path, ByteBuffer& content) {
    const auto file = platform::OpenFile::openForReading(path);
    if (!file) {
        Raise<CreateFileForReadingException>()(
            "File::read(): CreateFile() failed to open file %s.\r\n", path);
    }
    std::uint64_t size = 0;
    if (!file->getSize(size) || size > largestSize) {
        Raise<ReadFileException>()(
            "File::read(): GetFileSize() failed for file %s with handle 0x%lx.\r\n", path,
            file->getHandle());
    }
    content.clear();
    content.resize(static_cast<std::size_t>(size));
    std::size_t done = 0;
    if (!file->read({content.data(), content.size()}, done) || done != content.size()) {
        Raise<ReadFileException>()("File::read(): ReadFile() failed or didn't read the expected "
                                   "number of bytes for file %s with handle 0x%lx.\r\n",
                                   path, file->getHandle());
    }
}

bool File::exists(const CXString& path) {
    return platform::OpenFile::openForReading(path) != nullptr;
}

} // namespace zent
