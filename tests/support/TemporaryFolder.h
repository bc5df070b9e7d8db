#pragma once

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

namespace zent::test {

/// A folder of the program's own, empty to begin with and removed at the end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        static std::atomic<int> count = 0;
        const char* const place = std::getenv("TEST_TMPDIR");
        m_path = (place != nullptr ? place : std::filesystem::temp_directory_path()) /
                 ("zent" + std::to_string(getpid()) + "-" + std::to_string(++count));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    void write(const std::string& name, const std::string& content) const {
        std::ofstream(m_path / name, std::ios::binary) << content;
    }
    std::string read(const std::string& name) const {
        std::ifstream file(m_path / name, std::ios::binary);
        std::ostringstream content;
        content << file.rdbuf();
        return content.str();
    }

private:
    std::filesystem::path m_path;
};

} // namespace zent::test
