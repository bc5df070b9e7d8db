#include "ocore/Attributes/AttrValueFactory.h"

#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/Faults/Exceptions.h"

namespace zent {

namespace {

std::unique_ptr<AttrValue> makeSimple(AVTE type, const CXString& value) {
    switch (type) {
    case AVTE_INTEGER:
        return std::make_unique<IppInteger>(value);
    case AVTE_ENUM:
        return std::make_unique<IppEnum>(value);
    case AVTE_NAME:
        return std::make_unique<IppName>(value);
    case AVTE_KEYWORD:
        return std::make_unique<IppKeyword>(value);
    case AVTE_BOOLEAN:
        return std::make_unique<IppBoolean>(value);
    case AVTE_TEXT:
        return std::make_unique<IppText>(value);
    case AVTE_MIMEMEDIA:
        return std::make_unique<IppMimeMediaType>(value);
    case AVTE_URI:
        return std::make_unique<IppUri>(value);
    default:
        break;
    }
    Raise<UnknownCaseException>()("AttrValueFactory::createSimpleAttrValue(AVTE): unhandled "
                                  "attribute value enumeration (%ld).\r\n",
                                  type);
}

} // namespace

std::unique_ptr<AttrValue> AttrValueFactory::createSimpleAttrValue(AVTE type,
                                                                   const CXString& value) {
    auto made = makeSimple(type, value);
    made->dump();
    return made;
}

std::unique_ptr<AttrValue> AttrValueFactory::createAttrValue(const CXString& syntax,
                                                             const CXString& value) {
    const AVTE type = syntaxToAVTE(syntax);
    if (type != AVTE_NULL) {
        return createSimpleAttrValue(type, value);
    }
    auto made = std::make_unique<IppNull>(syntax);
    made->dump();
    return made;
}

} // namespace zent
