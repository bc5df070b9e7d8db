#include "ocore/Attributes/IppNull.h"

namespace zent {

std::unique_ptr<AttrValue> IppNull::clone() const { return std::make_unique<IppNull>(*this); }

bool IppNull::isEqual(const AttrValue& other) const {
    return isSameKind(other) && static_cast<const IppNull&>(other).m_syntax == m_syntax;
}

} // namespace zent
