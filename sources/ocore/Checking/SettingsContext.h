#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Attributes/NestedAttrID.h"
#include "ocore/FeatureSettings/FeatureNumber.h"

namespace zent {

/// Where in a ticket a problem lies: the nodes on the way to it. It points into the ticket, which
/// must stay as it is until the problem is repaired.
class SettingsContext {
public:
    struct Step {
        AttrNodeList* list = nullptr; // the list that holds the node
        AttrNode* node = nullptr;
        std::uint32_t position = 0; // the position of the node in the list
        bool inSet = false;         // whether the list is that of a set
    };

    /// The steps lead from the ticket's own list inwards. `list` is the last one walked: what holds
    /// the last node, or, for something that is missing, where that should be. `leaf` is the name
    /// of the attribute there, `attribute` what it is known as.
    SettingsContext(AttrNodeList& list, std::vector<Step> steps, const AttrID& leaf,
                    const CXString& attribute);

    AttrNodeList& getList() const { return *m_list; }
    const std::vector<Step>& getSteps() const { return m_steps; }
    /// The current node; null for something that is missing at the top of the ticket.
    AttrNode* getNode() const { return m_steps.empty() ? nullptr : m_steps.back().node; }
    /// Whether the last step is what should hold the attribute, rather than the attribute itself.
    bool isMissing() const { return m_steps.empty() || m_steps.back().list != m_list; }
    bool isInSet() const { return !m_steps.empty() && m_steps.back().inSet; }
    /// The path to the attribute, from the ticket's own list.
    const NestedAttrID& getPath() const { return m_path; }
    /// What the attribute is known as: for a member of a set the name of the set.
    const CXString& getAttributeName() const { return m_attribute; }

    FeatureEnum getParentFeature() const { return m_parentFeature; }
    void setParentFeature(FeatureEnum feature) { m_parentFeature = feature; }
    /// Whether what holds the node makes no sense without it.
    bool isRequired() const { return m_required; }
    void setRequired(bool isRequired) { m_required = isRequired; }

    /// Finds the nodes again in a list of the same shape, such as a copy of the ticket. False, and
    /// nothing changed, if they aren't there.
    bool refresh(AttrNodeList& root);

private:
    const CXString& getStepName(std::size_t index) const;

    AttrNodeList* m_list;
    std::vector<Step> m_steps;
    NestedAttrID m_path;
    CXString m_attribute;
    FeatureEnum m_parentFeature = TJTF_ANY;
    bool m_required = false;
};

} // namespace zent
