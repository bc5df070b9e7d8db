#include "ocore/Capabilities/CapabilitySource.h"

#include "ocore/AnlXlate/AnlTranslatorForXml.h"

namespace zent {

void CapabilitySource::load(AttrNodeList& list) const {
    ByteBuffer document;
    getDocument(document);
    OcapTranslator().anlFromBuffer(document, &list);
}

} // namespace zent
