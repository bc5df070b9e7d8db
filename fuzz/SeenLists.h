#pragma once

// Which lists a fuzz target has met.

#include <functional>
#include <string>
#include <unordered_set>

#include "SameList.h"

namespace zent::fuzz {

/// A list like one before would travel as that one did, which takes most of the time of an input.
class SeenLists {
public:
    /// `text` is what else makes an input what it is.
    bool isNew(const AttrNodeList& list, std::u16string text = {}) {
        describe(list, text);
        return m_seen.insert(std::hash<std::u16string>()(text)).second;
    }

private:
    /// All that makes a list what it is.
    static void describe(const AttrNodeList& list, std::u16string& text) {
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            const AttrValue& value = node.getAttrValue();
            text += node.getName().view();
            text += u' ';
            text += value.getIppSyntax().view();
            text += value.isSpacePreserved() ? u'=' : u'~';
            if (value.isList()) {
                text += u'{';
                describe(listOf(value), text);
                text += u'}';
            } else {
                text += value.getIppValue().view();
            }
            text += u'\0';
        }
    }

    std::unordered_set<std::size_t> m_seen;
};

} // namespace zent::fuzz
