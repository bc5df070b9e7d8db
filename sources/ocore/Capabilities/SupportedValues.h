#pragma once

#include <string_view>
#include <vector>

#include "ocore/Attributes/AttrNode.h"
#include "ocore/Attributes/AttrNodeList.h"

namespace zent {

/// The "-supported" capability of an attribute, with its texts sorted for lookup. It refers to the
/// capability list, which mustn't change as long as it lives.
class SupportedValues {
public:
    explicit SupportedValues(const AttrValue& capability);

    const AttrValue& getValue() const { return *m_value; }
    /// The embedded list; null if the capability is a single value.
    const AttrNodeList* getList() const { return m_list; }

    /// The keywords among the members of the set.
    const std::vector<std::u16string_view>& getKeywords() const { return m_keywords; }
    bool hasKeyword(std::u16string_view keyword) const;
    /// Whether a keyword or name of this text is among the members.
    bool hasText(std::u16string_view text) const;
    /// The members that are no text, private ones left out.
    const std::vector<const AttrNode*>& getOtherMembers() const { return m_others; }

private:
    const AttrValue* m_value;
    const AttrNodeList* m_list;
    std::vector<std::u16string_view> m_keywords; // sorted
    std::vector<std::u16string_view> m_texts;    // sorted
    std::vector<const AttrNode*> m_others;
};

} // namespace zent
