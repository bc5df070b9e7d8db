#pragma once

#include <memory>

namespace zent::test {

/// Puts an empty preference store in the place of the user's own as long as the object lives.
/// Elsewhere than on Windows that is a configuration folder, to which XDG_CONFIG_HOME leads.
class ScratchPreferences {
public:
    ScratchPreferences();
    ~ScratchPreferences();
    ScratchPreferences(const ScratchPreferences&) = delete;
    ScratchPreferences& operator=(const ScratchPreferences&) = delete;

    /// Makes the store empty again.
    void clear();

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace zent::test
