#include "ocore/OrdoParse/OCapDomDoc.h"

namespace zent {

std::string_view OCapDomDoc::getSkeletonDocument() const {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
           "<ocap version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"> </ocap>";
}

} // namespace zent
