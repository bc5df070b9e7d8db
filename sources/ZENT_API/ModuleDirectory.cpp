#include "ZENT_API/ModuleDirectory.h"

#include <algorithm>

#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "platform/Files.h"

namespace zent {

CXString cutToDirectory(const CXString& path, char16_t separator) {
    // The first character always stays, even if there is no separator.
    return path.left(std::max(path.findLast(separator), 0) + 1);
}

void announceModuleDirectory() {
    const CXString directory =
        cutToDirectory(CXString(platform::getModulePath()), platform::pathSeparator);
    ordoDtd::setDirectory(directory);
    ResourceLibrary::setPath(directory + u"zenres27.dll");
}

} // namespace zent
