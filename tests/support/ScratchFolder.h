#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "ocore/Text/CXString.h"

namespace zent::test {

/// A folder of the running test's own, empty to begin with and removed at the end.
class ScratchFolder {
public:
    ScratchFolder() {
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::path(testing::TempDir()) /
                 (std::string(info->test_suite_name()) + "." + info->name());
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// The path of a file in it, as the library takes it.
    CXString file(const std::string& name) const {
        std::filesystem::path path = m_path / name;
        return CXString(path.make_preferred().string().c_str());
    }
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
