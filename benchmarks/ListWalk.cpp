#include "ListWalk.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"

namespace zent::bench {

namespace {

std::size_t readUnits(const CXString& text) {
    std::size_t sum = 0;
    for (const char16_t unit : text.view()) {
        sum += unit;
    }
    return sum;
}

} // namespace

std::size_t walkList(const AttrNodeList& list) {
    std::size_t sum = 0;
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        const AttrNode& node = list.getNodeAt(i);
        const AttrValue& value = node.getAttrValue();
        sum += readUnits(node.getName());
        if (const AttrNodeList* const inner = embeddedList(value)) {
            sum += walkList(*inner);
        } else if (value.isPrimitiveInteger()) {
            sum += static_cast<std::size_t>(static_cast<const PrimitiveInteger&>(value).getValue());
        } else if (value.isPrimitiveString()) {
            sum += readUnits(static_cast<const PrimitiveString&>(value).getValue());
        }
    }
    return sum;
}

} // namespace zent::bench
