#include "support/ScratchPreferences.h"

#include <filesystem>

#include "platform/posix/Environment.h"

namespace zent::test {

struct ScratchPreferences::Native {
    TemporaryFolder folder;
    Environment configuration{"XDG_CONFIG_HOME", folder.path().string()};
};

ScratchPreferences::ScratchPreferences() : m_native(std::make_unique<Native>()) {}
ScratchPreferences::~ScratchPreferences() = default;

void ScratchPreferences::clear() {
    std::filesystem::remove_all(m_native->folder.path() / "zent27");
}

} // namespace zent::test
