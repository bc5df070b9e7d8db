#pragma once

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// Files as a whole.
class File {
public:
    File() = delete;

    /// Reads all of an existing file into `content`, which an empty file leaves empty. Raises
    /// CreateFileForReadingException, or ReadFileException, also for a file above `largestSize`.
    static void read(const CXString& path, ByteBuffer& content);

    /// Whether the file can be opened for reading.
    static bool exists(const CXString& path);

    /// What comes from outside is never larger than this, in bytes.
    static constexpr std::uint64_t largestSize = 64ULL * 1024 * 1024;
};

} // namespace zent
