#include "ocore/Checking/RemovedNodes.h"

#include <utility>

#include "ocore/Attributes/EmbeddedList.h"

namespace zent {

void RemovedNodes::note(const AttrNode& node) {
    m_nodes.insert(&node);
    const AttrNodeList* const list = embeddedList(node);
    for (std::uint32_t i = 0; list != nullptr && i < list->getNumberOfNodes(); ++i) {
        note(list->getNodeAt(i));
    }
}

void RemovedNodes::remove(const AttrNodeList& list, AttrNode& node) {
    if (contains(&node)) {
        return;
    }
    note(node);
    ++m_removedFrom[&list];
    AttrNode content(node.getAttrID(), std::make_unique<IppList>(), node.isPrivate());
    std::swap(node, content);
    m_kept.push_back(std::move(content));
}

bool RemovedNodes::isEmpty(const AttrNodeList& list) const {
    const auto found = m_removedFrom.find(&list);
    const std::uint32_t removed = found == m_removedFrom.end() ? 0 : found->second;
    return removed == list.getNumberOfNodes();
}

} // namespace zent
