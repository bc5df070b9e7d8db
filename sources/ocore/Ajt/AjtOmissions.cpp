#include "ocore/Ajt/AjtOmissions.h"

#include "ocore/Attributes/EmbeddedList.h"

namespace zent::ajt {

namespace {

/// The members of a set or collection; null for what is one value, ranges and resolutions included.
const AttrNodeList* membersOf(const AttrValue& value) {
    return value.isRangeOfInteger() || value.isResolution() ? nullptr : embeddedList(value);
}

class OmissionLister {
public:
    explicit OmissionLister(const SpokenNodes& spoken) : m_spoken(spoken) {}

    /// Whether the stream has a line for anything in a list. `way` is the path to what holds the
    /// list. What has no line is added to the omissions.
    bool visitList(const AttrNodeList& list, const CXString& way) {
        bool isSpokenOf = false;
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            const CXString path = way.isEmpty() ? node.getName() : way + u"/" + node.getName();
            isSpokenOf = visit(node, path, node.getName()) || isSpokenOf;
        }
        return isSpokenOf;
    }

    std::vector<AjtOmission> m_omissions;

private:
    bool visit(const AttrNode& node, const CXString& path, const CXString& attribute) {
        if (node.isPrivate()) {
            return false;
        }
        const bool isTaken = m_spoken.contains(&node);
        const AttrNodeList* const members = membersOf(node.getAttrValue());
        if (members == nullptr) {
            if (!isTaken) {
                m_omissions.push_back({path, attribute, &node});
            }
            return isTaken;
        }
        const std::size_t before = m_omissions.size();
        const bool isSpokenOf =
            (node.getAttrValue().is1setOf() ? visitSet(*members, path, attribute)
                                            : visitList(*members, path)) ||
            isTaken;
        if (!isSpokenOf && m_omissions.size() > before) {
            m_omissions.resize(before); // they go as one
            m_omissions.push_back({path, attribute, &node});
        }
        return isSpokenOf;
    }

    bool visitSet(const AttrNodeList& members, const CXString& path, const CXString& attribute) {
        bool isSpokenOf = false;
        for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
            const CXString memberPath = path + formatText("[%lu]", i + 1);
            isSpokenOf = visit(members.getNodeAt(i), memberPath, attribute) || isSpokenOf;
        }
        return isSpokenOf;
    }

    const SpokenNodes& m_spoken;
};

} // namespace

std::vector<AjtOmission> listOmissions(const AttrNodeList& ticket, const SpokenNodes& spoken) {
    OmissionLister lister(spoken);
    lister.visitList(ticket, CXString());
    return std::move(lister.m_omissions);
}

} // namespace zent::ajt
