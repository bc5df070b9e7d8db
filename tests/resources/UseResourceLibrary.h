#pragma once

#include "ocore/Resources/ResourceLibrary.h"
#include "platform/Files.h"

namespace zent::test {

/// Makes the library open the resource library of that name beside the test program.
inline void useResourceLibrary(std::u16string_view fileName = u"zenres27.dll") {
    const CXString program = platform::getModulePath();
    const auto folder = program.view().rfind(platform::pathSeparator);
    CXString path(program.view().substr(0, folder + 1)); // empty if there is no folder
    path += fileName;
    ResourceLibrary::setPath(path);
}

} // namespace zent::test
