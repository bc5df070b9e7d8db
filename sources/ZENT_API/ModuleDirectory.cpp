#include "ZENT_API/ModuleDirectory.h"

#include <algorithm>

#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "platform/Files.h"

namespace zent {

CXString cutToDirectory(const CXString& path, char16_t separator) {
    // The first character stays in any case, also where no separator was found behind it.
    return path.left(std::max(path.findLast(separator), 0) + 1);
}

void announceModuleDirectory() {
    const CXString directory =
        cutToDirectory(CXString(platform::getModulePath()), platform::pathSeparator);
    ordoDtd::setDirectory(directory);
    ResourceLibrary::setPath(directory + u"zenres27.dll");
}

} // namespace zent
