// The same path serves both ways: to find the list of an attribute, and to make the lists that are
// missing on the way.

#include "ocore/Attributes/NestedAttrID.h"

#include <algorithm>
#include <utility>

namespace zent {

NestedAttrID::NestedAttrID() : m_id(u"NAID_TEMPORARY") {}

void NestedAttrID::addParent(const CXString& name, const CXString& syntax, std::uint32_t role) {
    m_path.push_back({AttrID(name), syntax, role});
    m_simple = false;
    if (role != plainParent) {
        m_name = name;
    }
}

bool NestedAttrID::hasParent(const CXString& name) const {
    return std::ranges::any_of(
        m_path, [&](const PathElement& element) { return element.name.getText() == name; });
}

void NestedAttrID::setAttrID(const AttrID& id) {
    if (m_name.isEmpty() || m_name == m_id.getText()) {
        m_name = id.getText();
    }
    m_id = id;
}

const AttrNodeList* NestedAttrID::findList(const AttrNodeList& list, std::uint32_t instance) const {
    const AttrNodeList* current = &list;
    for (std::size_t i = 0; i < m_path.size(); ++i) {
        const bool isLast = i + 1 == m_path.size();
        const AttrNodeList* next = nullptr;
        if (!current->OrdoAttrToList(&next, m_path[i].name, isLast ? instance : 0)) {
            return nullptr;
        }
        current = next;
    }
    return current;
}

AttrNodeList* NestedAttrID::findList(AttrNodeList& list, std::uint32_t instance) const {
    return const_cast<AttrNodeList*>(findList(std::as_const(list), instance));
}

AttrNodeList* NestedAttrID::findOrCreateList(AttrNodeList& list, std::uint32_t instance) const {
    AttrNodeList* current = &list;
    bool creating = false;
    for (std::size_t i = 0; i < m_path.size(); ++i) {
        const bool isLast = i + 1 == m_path.size();
        AttrNodeList* next = nullptr;
        creating =
            creating || !current->OrdoAttrToList(&next, m_path[i].name, isLast ? instance : 0);
        current = creating ? current->addList(m_path[i].name, m_path[i].syntax) : next;
    }
    return current;
}

void NestedAttrID::removeEmptyParents(AttrNodeList& list) const { removeEmptyParents(list, 0); }

void NestedAttrID::removeEmptyParents(AttrNodeList& list, std::size_t depth) const {
    AttrNodeList* next = nullptr;
    if (depth == m_path.size() || !list.OrdoAttrToList(&next, m_path[depth].name)) {
        return;
    }
    removeEmptyParents(*next, depth + 1);
    if (next->getNumberOfNodes() == 0) {
        list.removeNode(m_path[depth].name);
    }
}

} // namespace zent
