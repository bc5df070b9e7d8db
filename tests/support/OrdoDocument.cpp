#include "support/OrdoDocument.h"

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/AnlXlate/OrdoDtd.h"

namespace zent::test {

void useOrdoDtd() { ordoDtd::setDirectory(programFolder()); }

std::string ordoDocument(std::string_view content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
           "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\">\r\n"
           "<ordo version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\">" +
           std::string(content) + "</ordo>";
}

std::string ordoTicket(std::string_view attributes) {
    return ordoDocument("<job-template-attributes>" + std::string(attributes) +
                        "</job-template-attributes>");
}

AttrNodeList readOrdo(std::string_view document) {
    AttrNodeList list;
    OrdoTranslator().anlFromBuffer(ByteBuffer(document.data(), document.size()), &list);
    return list;
}

std::string writeOrdo(const AttrNodeList& list) {
    ByteBuffer buffer;
    OrdoTranslator().anlToBuffer(list, &buffer);
    return {reinterpret_cast<const char*>(buffer.data()), buffer.size()};
}

} // namespace zent::test
