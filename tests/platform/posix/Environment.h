#pragma once

#include <cstdlib>
#include <optional>
#include <string>

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

} // namespace zent::test
