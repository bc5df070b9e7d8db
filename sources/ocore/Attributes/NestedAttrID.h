#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Attributes/AttrID.h"
#include "ocore/Attributes/AttrNodeList.h"

namespace zent {

/// Names one attribute at any depth of a tree of lists: a leaf, and the parents on the way to it.
///
/// Outside, the attribute is known by the leaf's name, or, where the leaf is just the "value" of a
/// set, by the name of the parent that is marked as naming. So the page ranges have the leaf
/// "value" in the set "page-ranges" and are known as "page-ranges"; a medium's "x-dimension" lies
/// in the collections "media-col" and "media-size".
class NestedAttrID {
public:
    /// The role of a parent that doesn't name the attribute; every other number marks one that
    /// does.
    static constexpr std::uint32_t plainParent = 3;
    static constexpr std::uint32_t namingParent = 1;

    /// Makes a placeholder that is always overwritten: its leaf is "NAID_TEMPORARY", and it has no
    /// name.
    NestedAttrID();
    explicit NestedAttrID(const AttrID& id) : m_id(id), m_name(id.getText()) {}

    bool operator==(const NestedAttrID& other) const = default;

    /// Adds the next parent, from the outermost inwards. A naming parent names the attribute.
    void addParent(const CXString& name, const CXString& syntax, std::uint32_t role);

    const AttrID& getAttrID() const { return m_id; }
    const CXString& getName() const { return m_name; }
    bool isSimple() const { return m_simple; }
    std::uint32_t getDepth() const { return static_cast<std::uint32_t>(m_path.size()); }

    /// Parents are counted from the innermost, which is 0, up to getDepth() - 1.
    const CXString& getParentName(std::uint32_t index) const {
        return parent(index).name.getText();
    }
    const CXString& getParentSyntax(std::uint32_t index) const { return parent(index).syntax; }
    bool isNamingParent(std::uint32_t index) const { return parent(index).role != plainParent; }
    bool hasParent(const CXString& name) const;

    /// Replaces the leaf. The name follows if it was the old leaf's or none.
    void setAttrID(const AttrID& id);

    /// The list that holds the leaf: instance 0 of each parent but the last, of which `instance` is
    /// taken. Null if a parent is missing; a parent that isn't a list raises
    /// AttributeTypeMismatchException.
    AttrNodeList* findList(AttrNodeList& list, std::uint32_t instance = 0) const;
    const AttrNodeList* findList(const AttrNodeList& list, std::uint32_t instance = 0) const;
    /// Finds the list in the same way, and creates what is missing.
    AttrNodeList* findOrCreateList(AttrNodeList& list, std::uint32_t instance = 0) const;
    /// Removes each parent that has become empty, from the innermost outwards.
    void removeEmptyParents(AttrNodeList& list) const;

private:
    struct PathElement {
        AttrID name;
        CXString syntax;
        std::uint32_t role;
        bool operator==(const PathElement&) const = default;
    };
    const PathElement& parent(std::uint32_t index) const {
        return m_path[m_path.size() - 1 - index];
    }
    void removeEmptyParents(AttrNodeList& list, std::size_t depth) const;

    AttrID m_id;
    CXString m_name;
    bool m_simple = true;
    std::vector<PathElement> m_path; // outermost first
};

} // namespace zent
