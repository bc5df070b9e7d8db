#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ocore/Attributes/AttrID.h"
#include "ocore/Attributes/AttrNode.h"

namespace zent {

/// An ordered list of named, typed nodes, repeats allowed: what a ticket, a capability set, a stock
/// or a preference document is held in. Lists nest through IppList values.
///
/// Where an operation takes an instance, 0 is the first node of that name, 1 the second, and so on
/// in list order. Lookups are linear, with no index, since order and repeats must survive. Node
/// pointers stay valid until their node is removed or its list destroyed; setNode() changes a node
/// in place. Copies are deep and start with the cursor at the beginning.
///
/// The cursor is for callers that walk a list in one go; it makes even reading a change of state.
/// The library itself walks by index (getNodeAt).
class AttrNodeList {
public:
    AttrNodeList() = default;
    AttrNodeList(const AttrNodeList& other);
    AttrNodeList& operator=(const AttrNodeList& other);
    AttrNodeList(AttrNodeList&& other) noexcept;
    AttrNodeList& operator=(AttrNodeList&& other) noexcept;
    ~AttrNodeList() = default;

    std::uint32_t getNumberOfNodes() const { return static_cast<std::uint32_t>(m_nodes.size()); }
    /// The node at a position below getNumberOfNodes().
    const AttrNode& getNodeAt(std::uint32_t position) const { return *m_nodes[position]; }
    AttrNode& getNodeAt(std::uint32_t position) { return *m_nodes[position]; }

    static constexpr std::uint32_t lastPosition = 0xFFFFFFFF;
    /// Whether the node at a position has this name; false outside the list.
    bool isNodeAt(const AttrID& id, std::uint32_t position) const;

    /// Null if there is no such instance.
    AttrNode* findNode(const AttrID& id, std::uint32_t instance = 0);
    const AttrNode* findNode(const AttrID& id, std::uint32_t instance = 0) const;
    AttrNode* findEqualNode(const AttrNode& node, std::uint32_t instance = 0);
    const AttrNode* findEqualNode(const AttrNode& node, std::uint32_t instance = 0) const;
    /// How many nodes have this name.
    std::uint32_t countNodes(const AttrID& id) const;

    AttrNode* addNode(const AttrNode& node);
    AttrNode* addNode(AttrNode&& node);
    /// Replaces the instance by a new, non-private node, or appends if it doesn't exist.
    AttrNode* setNode(const AttrID& id, const AttrValue& value, std::uint32_t instance = 0);
    AttrNode* setNode(const AttrID& id, std::unique_ptr<AttrValue> value,
                      std::uint32_t instance = 0);
    /// Removes a node and gives the position of what followed it; the end if nothing was removed.
    /// If the node is the one that the cursor has just passed, the cursor stays before what
    /// followed it.
    std::uint32_t removeNode(const AttrID& id, std::uint32_t instance = 0);
    std::uint32_t removeNode(const AttrNode* node);
    void removeAllNodes();
    /// Moves an instance before all others; false if there is none or it stands there already.
    bool moveNodeToFront(const AttrID& id, std::uint32_t instance = 0);

    void resetCursor() { m_cursor = 0; }
    bool hasMoreNodes() const { return m_cursor < m_nodes.size(); }
    bool hasMoreNonPrivateNodes() const;
    /// The node at the cursor, which moves on; raises NodeAccessOutOfBoundsException at the end.
    AttrNode* getNextNode();
    AttrNode* getNextNonPrivateNode();

    /// Folds another list into this one. What this list has wins, and collections combine member by
    /// member; as a set, members accumulate without duplicates. The other list mustn't lie in this
    /// one.
    void merge(const AttrNodeList& other, bool asSet);
    /// Removes embedded lists that are empty or hold nothing but empty lists, at all depths.
    void removeEmptyLists();
    /// Removes all equal nodes at all depths, and the lists below that this leaves empty.
    void removeNodeEverywhere(const AttrNode& node);

    /// Appends a value of a syntax, made from text.
    AttrNode* addValue(const CXString& syntax, const CXString& value, const AttrID& id);
    AttrNode* addInteger(std::int32_t value, const AttrID& id);
    AttrNode* addKeyword(const CXString& value, const AttrID& id);
    /// These append an IppList and give its embedded list.
    AttrNodeList* addList(const AttrID& id, const CXString& syntax);
    AttrNodeList* addSetOf(const AttrID& id);
    AttrNodeList* addCollection(const AttrID& id);

    /// Typed reading. False, and the target untouched, if the instance doesn't exist; a node of
    /// another kind raises AttributeTypeMismatchException. OrdoAttrToLong takes integers and enums,
    /// OrdoAttrToString all kinds of text, OrdoAttrToList gives the embedded list, not a copy.
    bool OrdoAttrToLong(std::int32_t* target, const AttrID& id, std::uint32_t instance = 0) const;
    bool OrdoAttrToString(CXString* target, const AttrID& id, std::uint32_t instance = 0) const;
    bool OrdoAttrToBool(bool* target, const AttrID& id, std::uint32_t instance = 0) const;
    bool OrdoAttrToList(AttrNodeList** target, const AttrID& id, std::uint32_t instance = 0);
    bool OrdoAttrToList(const AttrNodeList** target, const AttrID& id,
                        std::uint32_t instance = 0) const;
    /// Both bounds are attempted; true if both were there.
    bool OrdoAttrToRange(std::int32_t* lower, std::int32_t* upper, const AttrID& id,
                         std::uint32_t instance = 0) const;

    /// Lists of equal length count as equal, whatever they hold: applications rely on it.
    bool operator==(const AttrNodeList& other) const;

private:
    std::uint32_t findPosition(const AttrID& id, std::uint32_t instance) const;
    std::uint32_t removeAt(std::uint32_t position);
    void removeEqualNodes(const AttrNode& node);
    void mergeList(const AttrNode& node, bool asSet, bool bothSingle);

    std::vector<std::unique_ptr<AttrNode>> m_nodes;
    std::size_t m_cursor = 0;
};

} // namespace zent
