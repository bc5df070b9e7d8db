#include "support/ScratchPreferences.h"

#include "platform/posix/Environment.h"

namespace zent::test {

struct ScratchPreferences::Native {
    ScratchFolder folder;
    Environment configuration{"XDG_CONFIG_HOME", folder.path().string()};
};

ScratchPreferences::ScratchPreferences() : m_native(std::make_unique<Native>()) {}
ScratchPreferences::~ScratchPreferences() = default;

} // namespace zent::test
