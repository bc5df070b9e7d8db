// Nodes are kept by pointer, so that callers may hold one while others are added. All look-ups walk
// the list, since the order and repeated names of a ticket must survive.

#include "ocore/Attributes/AttrNodeList.h"

#include <algorithm>
#include <utility>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/Faults/Exceptions.h"

namespace zent {

AttrNodeList::AttrNodeList(const AttrNodeList& other) {
    m_nodes.reserve(other.m_nodes.size());
    for (const auto& node : other.m_nodes) {
        m_nodes.push_back(std::make_unique<AttrNode>(*node));
    }
}

AttrNodeList& AttrNodeList::operator=(const AttrNodeList& other) {
    if (this != &other) {
        *this = AttrNodeList(other);
    }
    return *this;
}

AttrNodeList::AttrNodeList(AttrNodeList&& other) noexcept : m_nodes(std::move(other.m_nodes)) {
    other.removeAllNodes();
}

AttrNodeList& AttrNodeList::operator=(AttrNodeList&& other) noexcept {
    if (this != &other) {
        // The other list may lie in this one, and would go with it.
        AttrNodeList taken(std::move(other));
        m_nodes.swap(taken.m_nodes);
        m_cursor = 0;
    }
    return *this;
}

bool AttrNodeList::isNodeAt(const AttrID& id, std::uint32_t position) const {
    if (position == lastPosition && !m_nodes.empty()) {
        position = getNumberOfNodes() - 1;
    }
    return position < m_nodes.size() && m_nodes[position]->getAttrID() == id;
}

std::uint32_t AttrNodeList::findPosition(const AttrID& id, std::uint32_t instance) const {
    const CXString& name = id.getText();
    for (std::uint32_t i = 0; i < m_nodes.size(); ++i) {
        if (m_nodes[i]->getName() == name && instance-- == 0) {
            return i;
        }
    }
    return lastPosition;
}

const AttrNode* AttrNodeList::findNode(const AttrID& id, std::uint32_t instance) const {
    const std::uint32_t position = findPosition(id, instance);
    return position == lastPosition ? nullptr : m_nodes[position].get();
}

AttrNode* AttrNodeList::findNode(const AttrID& id, std::uint32_t instance) {
    const std::uint32_t position = findPosition(id, instance);
    return position == lastPosition ? nullptr : m_nodes[position].get();
}

const AttrNode* AttrNodeList::findEqualNode(const AttrNode& node, std::uint32_t instance) const {
    for (const auto& candidate : m_nodes) {
        if (*candidate == node && instance-- == 0) {
            return candidate.get();
        }
    }
    return nullptr;
}

AttrNode* AttrNodeList::findEqualNode(const AttrNode& node, std::uint32_t instance) {
    return const_cast<AttrNode*>(std::as_const(*this).findEqualNode(node, instance));
}

std::uint32_t AttrNodeList::countNodes(const AttrID& id) const {
    return static_cast<std::uint32_t>(
        std::ranges::count_if(m_nodes, [&](const auto& node) { return node->getAttrID() == id; }));
}

AttrNode* AttrNodeList::addNode(const AttrNode& node) { return addNode(AttrNode(node)); }

AttrNode* AttrNodeList::addNode(AttrNode&& node) {
    return m_nodes.emplace_back(std::make_unique<AttrNode>(std::move(node))).get();
}

AttrNode* AttrNodeList::setNode(const AttrID& id, const AttrValue& value, std::uint32_t instance) {
    return setNode(id, value.clone(), instance);
}

AttrNode* AttrNodeList::setNode(const AttrID& id, std::unique_ptr<AttrValue> value,
                                std::uint32_t instance) {
    AttrNode made(id, std::move(value), false);
    AttrNode* const present = findNode(id, instance);
    if (present == nullptr) {
        return addNode(std::move(made));
    }
    *present = std::move(made);
    return present;
}

std::uint32_t AttrNodeList::removeAt(std::uint32_t position) {
    m_nodes.erase(m_nodes.begin() + static_cast<std::ptrdiff_t>(position));
    if (m_cursor == position + 1) {
        m_cursor = position;
    }
    return position;
}

std::uint32_t AttrNodeList::removeNode(const AttrID& id, std::uint32_t instance) {
    const std::uint32_t position = findPosition(id, instance);
    return position == lastPosition ? getNumberOfNodes() : removeAt(position);
}

std::uint32_t AttrNodeList::removeNode(const AttrNode* node) {
    const auto found = std::ranges::find(m_nodes, node, &std::unique_ptr<AttrNode>::get);
    return found == m_nodes.end() ? getNumberOfNodes()
                                  : removeAt(static_cast<std::uint32_t>(found - m_nodes.begin()));
}

void AttrNodeList::removeAllNodes() {
    m_nodes.clear();
    m_cursor = 0;
}

bool AttrNodeList::moveNodeToFront(const AttrID& id, std::uint32_t instance) {
    const std::uint32_t position = findPosition(id, instance);
    if (position == lastPosition || position == 0) {
        return false;
    }
    const auto moved = m_nodes.begin() + static_cast<std::ptrdiff_t>(position);
    std::rotate(m_nodes.begin(), moved, moved + 1);
    return true;
}

bool AttrNodeList::hasMoreNonPrivateNodes() const {
    for (std::size_t i = m_cursor; i < m_nodes.size(); ++i) {
        if (!m_nodes[i]->isPrivate()) {
            return true;
        }
    }
    return false;
}

AttrNode* AttrNodeList::getNextNode() {
    if (!hasMoreNodes()) {
        Raise<NodeAccessOutOfBoundsException>()(
            "AttrNodeList::getNextNode(): No more nodes to get. Caller failed to test with "
            "hasMoreNodes() first!\r\n");
    }
    return m_nodes[m_cursor++].get();
}

AttrNode* AttrNodeList::getNextNonPrivateNode() {
    if (!hasMoreNonPrivateNodes()) {
        Raise<NodeAccessOutOfBoundsException>()(
            "AttrNodeList::getNextNonPrivateNode(): No more non-private nodes to get. Caller "
            "failed to test with hasMoreNonPrivateNodes() first!\r\n");
    }
    while (m_nodes[m_cursor]->isPrivate()) {
        ++m_cursor;
    }
    return m_nodes[m_cursor++].get();
}

void AttrNodeList::mergeList(const AttrNode& node, bool asSet, bool bothSingle) {
    const auto& list = static_cast<const IppList&>(node.getAttrValue());
    AttrNode* const present = asSet && !bothSingle ? nullptr : findNode(node.getAttrID());
    if (present == nullptr) {
        addNode(node);
        return;
    }
    // What this list has wins, even where it is no list to merge into.
    if (AttrNodeList* const target = embeddedList(*present)) {
        target->merge(list.getAttrNodeList(), list.is1setOf());
    }
}

void AttrNodeList::merge(const AttrNodeList& other, bool asSet) {
    if (this == &other) {
        return;
    }
    for (const auto& node : other.m_nodes) {
        if (node->getAttrValue().isList()) {
            const bool bothSingle = m_nodes.size() == 1 && other.m_nodes.size() == 1;
            mergeList(*node, asSet, bothSingle);
        } else if (asSet ? findEqualNode(*node) == nullptr
                         : findNode(node->getAttrID()) == nullptr) {
            addNode(*node);
        }
    }
}

void AttrNodeList::removeEmptyLists() {
    // One pass that closes the gaps: a repaired ticket may have a great many.
    std::size_t kept = 0;
    for (auto& node : m_nodes) {
        AttrNodeList* const list = embeddedList(*node);
        if (list != nullptr) {
            list->removeEmptyLists();
        }
        if (list == nullptr || !list->m_nodes.empty()) {
            std::swap(m_nodes[kept++], node);
        } else if (m_cursor == kept + 1) {
            m_cursor = kept;
        }
    }
    m_nodes.resize(kept);
}

void AttrNodeList::removeNodeEverywhere(const AttrNode& node) {
    removeEqualNodes(AttrNode(node)); // a copy, since the node may be one of those that go
}

void AttrNodeList::removeEqualNodes(const AttrNode& node) {
    while (AttrNode* const equal = findEqualNode(node)) {
        removeNode(equal);
    }
    for (std::uint32_t i = 0; i < m_nodes.size();) {
        AttrNodeList* const list = embeddedList(*m_nodes[i]);
        if (list != nullptr) {
            list->removeEqualNodes(node);
        }
        if (list != nullptr && list->m_nodes.empty()) {
            removeAt(i);
        } else {
            ++i;
        }
    }
}

AttrNode* AttrNodeList::addValue(const CXString& syntax, const CXString& value, const AttrID& id) {
    return addNode(AttrNode(id, AttrValueFactory::createAttrValue(syntax, value), false));
}

AttrNode* AttrNodeList::addInteger(std::int32_t value, const AttrID& id) {
    return addValue(syntax::integer, CXString::Format(u"%ld", value), id);
}

AttrNode* AttrNodeList::addKeyword(const CXString& value, const AttrID& id) {
    return addValue(syntax::keyword, value, id);
}

AttrNodeList* AttrNodeList::addList(const AttrID& id, const CXString& syntax) {
    return embeddedList(*addNode(AttrNode(id, std::make_unique<IppList>(syntax), false)));
}

AttrNodeList* AttrNodeList::addSetOf(const AttrID& id) { return addList(id, syntax::setOf); }

AttrNodeList* AttrNodeList::addCollection(const AttrID& id) {
    return addList(id, syntax::collection);
}

bool AttrNodeList::OrdoAttrToLong(std::int32_t* target, const AttrID& id,
                                  std::uint32_t instance) const {
    const AttrNode* const node = findNode(id, instance);
    if (node == nullptr) {
        return false;
    }
    if (!node->getAttrValue().isPrimitiveInteger()) {
        Raise<AttributeTypeMismatchException>()(
            "AttrNodeList::OrdoAttrToLong(): Specified attribute '%s' is not derived from "
            "PrimitiveInteger or IppEnum!\r\n",
            id.getText());
    }
    *target = static_cast<const PrimitiveInteger&>(node->getAttrValue()).getValue();
    return true;
}

bool AttrNodeList::OrdoAttrToString(CXString* target, const AttrID& id,
                                    std::uint32_t instance) const {
    const AttrNode* const node = findNode(id, instance);
    if (node == nullptr) {
        return false;
    }
    if (!node->getAttrValue().isPrimitiveString()) {
        Raise<AttributeTypeMismatchException>()(
            "AttrNodeList::OrdoAttrToString(): Specified attribute '%s' is not derived from "
            "PrimitiveString!\r\n",
            id.getText());
    }
    *target = static_cast<const PrimitiveString&>(node->getAttrValue()).getValue();
    return true;
}

bool AttrNodeList::OrdoAttrToBool(bool* target, const AttrID& id, std::uint32_t instance) const {
    const AttrNode* const node = findNode(id, instance);
    if (node == nullptr) {
        return false;
    }
    if (node->getAttrValue().getAttrValueType() != AVTE_BOOLEAN) {
        Raise<AttributeTypeMismatchException>()(
            "AttrNodeList::OrdoAttrToBool(): Specified attribute '%s' is not IppBoolean!\r\n",
            id.getText());
    }
    *target = static_cast<const IppBoolean&>(node->getAttrValue()).getValue();
    return true;
}

bool AttrNodeList::OrdoAttrToList(const AttrNodeList** target, const AttrID& id,
                                  std::uint32_t instance) const {
    const AttrNode* const node = findNode(id, instance);
    if (node == nullptr) {
        return false;
    }
    if (!node->getAttrValue().isList()) {
        Raise<AttributeTypeMismatchException>()(
            "AttrNodeList::OrdoAttrToList(): Specified attribute '%s' is not derived from "
            "IppList!\r\n",
            id.getText());
    }
    *target = &static_cast<const IppList&>(node->getAttrValue()).getAttrNodeList();
    return true;
}

bool AttrNodeList::OrdoAttrToList(AttrNodeList** target, const AttrID& id, std::uint32_t instance) {
    const AttrNodeList* found = nullptr;
    if (!std::as_const(*this).OrdoAttrToList(&found, id, instance)) {
        return false;
    }
    // The list that was found is a part of this one, which isn't const.
    *target = const_cast<AttrNodeList*>(found);
    return true;
}

bool AttrNodeList::OrdoAttrToRange(std::int32_t* lower, std::int32_t* upper, const AttrID& id,
                                   std::uint32_t instance) const {
    const AttrNodeList* range = nullptr;
    if (!OrdoAttrToList(&range, id, instance)) {
        return false;
    }
    const bool hasLower = range->OrdoAttrToLong(lower, attrNames::lowerBound());
    const bool hasUpper = range->OrdoAttrToLong(upper, attrNames::upperBound());
    return hasLower && hasUpper;
}

bool AttrNodeList::operator==(const AttrNodeList& other) const {
    // Applications rely on this: a comparison of the nodes would make lists differ that they take
    // for equal.
    return m_nodes.size() == other.m_nodes.size();
}

} // namespace zent
