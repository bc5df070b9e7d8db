#include "ocore/Attributes/PrimitiveString.h"

namespace zent {

bool PrimitiveString::isEqual(const AttrValue& other) const {
    return isSameKind(other) && static_cast<const PrimitiveString&>(other).m_value == m_value;
}

std::unique_ptr<AttrValue> IppKeyword::clone() const { return std::make_unique<IppKeyword>(*this); }

std::unique_ptr<AttrValue> IppName::clone() const { return std::make_unique<IppName>(*this); }

std::unique_ptr<AttrValue> IppText::clone() const { return std::make_unique<IppText>(*this); }

std::unique_ptr<AttrValue> IppUri::clone() const { return std::make_unique<IppUri>(*this); }

std::unique_ptr<AttrValue> IppMimeMediaType::clone() const {
    return std::make_unique<IppMimeMediaType>(*this);
}

} // namespace zent
