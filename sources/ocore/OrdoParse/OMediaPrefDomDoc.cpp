#include "ocore/OrdoParse/OMediaPrefDomDoc.h"

namespace zent {

std::string_view OMediaPrefDomDoc::getSkeletonDocument() const {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
           "<omediapref version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"> </omediapref>";
}

} // namespace zent
