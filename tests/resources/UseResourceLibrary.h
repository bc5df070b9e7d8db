#pragma once

#include "ocore/Resources/ResourceLibrary.h"
#include "platform/Files.h"

namespace zent::test {

/// Makes the library open the resource library of that name beside the test program.
inline void useResourceLibrary(std::u16string_view fileName = u"zenres27.dll") {
    const std::u16string program = platform::getModulePath();
    CXString path(program.substr(0, program.rfind(platform::pathSeparator) + 1));
    path += fileName;
    ResourceLibrary::setPath(path);
}

} // namespace zent::test
