#include "ocore/Capabilities/SupportedValues.h"

#include <algorithm>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/PrimitiveString.h"

namespace zent {

SupportedValues::SupportedValues(const AttrValue& capability)
    : m_value(&capability), m_list(embeddedList(capability)) {
    for (std::uint32_t i = 0; m_list != nullptr && i < m_list->getNumberOfNodes(); ++i) {
        const AttrNode& member = m_list->getNodeAt(i);
        const AVTE type = member.getAttrValue().getAttrValueType();
        if (member.isPrivate()) {
            continue;
        }
        if (type != AVTE_KEYWORD && type != AVTE_NAME) {
            m_others.push_back(&member);
            continue;
        }
        const auto& text = static_cast<const PrimitiveString&>(member.getAttrValue()).getValue();
        m_texts.push_back(text.view());
        if (type == AVTE_KEYWORD && member.getAttrID() == attrNames::value()) {
            m_keywords.push_back(text.view());
        }
    }
    std::ranges::sort(m_texts);
    std::ranges::sort(m_keywords);
}

bool SupportedValues::hasKeyword(std::u16string_view keyword) const {
    return std::ranges::binary_search(m_keywords, keyword);
}

bool SupportedValues::hasText(std::u16string_view text) const {
    return std::ranges::binary_search(m_texts, text);
}

} // namespace zent
