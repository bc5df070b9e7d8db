#pragma once

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "ocore/Attributes/AttrNodeList.h"

namespace zent {

/// The nodes that a repair takes out of a ticket. An empty list takes the place of each, which
/// AttrNodeList::removeEmptyLists() clears away in the end, so that many removals take no longer
/// than one pass; what was taken out is kept as long as the repair, so that no address is used
/// again while problems refer to it.
class RemovedNodes {
public:
    RemovedNodes() = default;
    RemovedNodes(const RemovedNodes&) = delete;
    RemovedNodes& operator=(const RemovedNodes&) = delete;

    /// Whether a node is out of the ticket, by itself or with what held it.
    bool contains(const AttrNode* node) const { return m_nodes.contains(node); }
    /// Takes a node out of the list that holds it.
    void remove(const AttrNodeList& list, AttrNode& node);
    /// Whether all nodes of a list are out.
    bool isEmpty(const AttrNodeList& list) const;

private:
    void note(const AttrNode& node);

    std::unordered_set<const AttrNode*> m_nodes;
    std::unordered_map<const AttrNodeList*, std::uint32_t> m_removedFrom;
    std::vector<AttrNode> m_kept;
};

} // namespace zent
