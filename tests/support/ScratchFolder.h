#pragma once

#include "ocore/Text/CXString.h"
#include "support/TemporaryFolder.h"

namespace zent::test {

/// With the paths of its files as the library takes them.
class ScratchFolder : public TemporaryFolder {
public:
    CXString file(const std::string& name) const {
        return CXString((path() / name).make_preferred().string().c_str());
    }
};

} // namespace zent::test
