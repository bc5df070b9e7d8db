#pragma once

#include "ocore/Attributes/AttrNode.h"
#include "ocore/Attributes/IppList.h"

namespace zent {

/// The list that a value or a node holds; null if it holds none.
inline const AttrNodeList* embeddedList(const AttrValue& value) {
    return value.isList() ? &static_cast<const IppList&>(value).getAttrNodeList() : nullptr;
}
inline const AttrNodeList* embeddedList(const AttrNode& node) {
    return embeddedList(node.getAttrValue());
}
inline AttrNodeList* embeddedList(AttrNode& node) {
    AttrValue& value = node.getAttrValue();
    return value.isList() ? &static_cast<IppList&>(value).getAttrNodeList() : nullptr;
}

} // namespace zent
