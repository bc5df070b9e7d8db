#include "ocore/Attributes/AttrNode.h"

namespace zent {

AttrNode& AttrNode::operator=(const AttrNode& other) {
    if (this != &other) {
        *this = AttrNode(other);
    }
    return *this;
}

bool AttrNode::operator==(const AttrNode& other) const {
    return m_id == other.m_id && m_private == other.m_private && m_value->isEqual(*other.m_value);
}

} // namespace zent
