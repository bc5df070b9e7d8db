#pragma once

#include <filesystem>

namespace zent::bench {

/// Preferences of the benchmarks' own, in place of the user's: none to begin with. They are removed
/// at the end.
class ScratchPreferences {
public:
    ScratchPreferences();
    ~ScratchPreferences();
    ScratchPreferences(const ScratchPreferences&) = delete;
    ScratchPreferences& operator=(const ScratchPreferences&) = delete;

    /// From now on there is no preference store.
    void useNone() const;
    /// From now on there is one, in which a session finds a few values.
    void useStored() const;

private:
    void use(const char* folder) const;

    std::filesystem::path m_path;
};

} // namespace zent::bench
