#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace zent::test {

/// Sets a variable of the environment, or removes it, as long as the object lives.
class Environment {
public:
    Environment(const char* name, const std::optional<std::string>& value) : m_name(name) {
        if (const char* before = std::getenv(name)) {
            m_before = before;
        }
        set(value);
    }
    ~Environment() { set(m_before); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    void set(const std::optional<std::string>& value) {
        if (value) {
            setenv(m_name, value->c_str(), 1);
        } else {
            unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

/// A new folder in that of temporary files; gone, with all that is in it, with the object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zentXXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::system_error(errno, std::generic_category(), pattern);
        }
        m_path = pattern;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace zent::test
