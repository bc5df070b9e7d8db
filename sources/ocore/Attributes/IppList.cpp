#include "ocore/Attributes/IppList.h"

#include "ocore/Attributes/AttrNode.h"

namespace zent {

std::unique_ptr<AttrValue> IppList::clone() const { return std::make_unique<IppList>(*this); }

bool IppList::isEqual(const AttrValue& other) const {
    if (!isSameKind(other)) {
        return false;
    }
    const auto& list = static_cast<const IppList&>(other);
    return list.m_syntax == m_syntax && list.m_nodes == m_nodes;
}

void IppList::dump() const {
    for (std::uint32_t i = 0; i < m_nodes.getNumberOfNodes(); ++i) {
        m_nodes.getNodeAt(i).getAttrValue().dump();
    }
}

} // namespace zent
