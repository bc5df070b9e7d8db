#include "platform/posix/Environment.h"

#include <cerrno>
#include <system_error>

#include <gtest/gtest.h>

namespace zent::test {

ScratchFolder::ScratchFolder() {
    std::string pattern = testing::TempDir() + "zentXXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), pattern);
    }
    m_path = pattern;
}

} // namespace zent::test
