#pragma once

#include <memory>

namespace zent::test {

/// A user of the program's own, who has stored nothing, in the place of the one who runs it, as
/// long as the object lives. Tests, benchmarks and fuzz targets share this.
class ScratchUser {
public:
    ScratchUser();
    ~ScratchUser();
    ScratchUser(const ScratchUser&) = delete;
    ScratchUser& operator=(const ScratchUser&) = delete;

    /// Makes the preference store empty again.
    void clear();

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace zent::test
