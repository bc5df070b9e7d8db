#pragma once

#include <memory>

#include "ocore/Attributes/AttrID.h"
#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// One element of a node list: a name, a value that it owns, and whether it is for the library's
/// own use. A private node takes part in all list operations but isn't written to any document.
class AttrNode {
public:
    /// Clones the value.
    AttrNode(const AttrID& id, const AttrValue& value, bool isPrivate)
        : AttrNode(id, value.clone(), isPrivate) {}
    /// Takes the value, which isn't null.
    AttrNode(const AttrID& id, std::unique_ptr<AttrValue> value, bool isPrivate)
        : m_id(id), m_value(std::move(value)), m_private(isPrivate) {}
    AttrNode(const AttrNode& other) : AttrNode(other.m_id, *other.m_value, other.m_private) {}
    AttrNode& operator=(const AttrNode& other);
    AttrNode(AttrNode&&) noexcept = default;
    AttrNode& operator=(AttrNode&&) noexcept = default;
    ~AttrNode() = default;

    const AttrID& getAttrID() const { return m_id; }
    const CXString& getName() const { return m_id.getText(); }
    void setAttrID(const AttrID& id) { m_id = id; }
    const AttrValue& getAttrValue() const { return *m_value; }
    AttrValue& getAttrValue() { return *m_value; }
    bool isPrivate() const { return m_private; }
    void setPrivate(bool isPrivate) { m_private = isPrivate; }

    /// Equal names, equal values, equal privacy.
    bool operator==(const AttrNode& other) const;

private:
    AttrID m_id;
    std::unique_ptr<AttrValue> m_value;
    bool m_private;
};

} // namespace zent
