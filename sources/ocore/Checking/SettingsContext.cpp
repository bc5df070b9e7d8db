#include "ocore/Checking/SettingsContext.h"

#include "ocore/Attributes/EmbeddedList.h"

namespace zent {

SettingsContext::SettingsContext(AttrNodeList& list, std::vector<Step> steps, const AttrID& leaf,
                                 const CXString& attribute)
    : m_list(&list), m_steps(std::move(steps)), m_path(leaf), m_attribute(attribute) {
    const std::size_t parents = isMissing() ? m_steps.size() : m_steps.size() - 1;
    for (std::size_t i = 0; i < parents; ++i) {
        const AttrNode& node = *m_steps[i].node;
        m_path.addParent(node.getName(), node.getAttrValue().getIppSyntax(),
                         NestedAttrID::plainParent);
    }
}

const CXString& SettingsContext::getStepName(std::size_t index) const {
    const std::uint32_t depth = m_path.getDepth();
    return index < depth ? m_path.getParentName(depth - 1 - static_cast<std::uint32_t>(index))
                         : m_path.getAttrID().getText();
}

bool SettingsContext::refresh(AttrNodeList& root) {
    std::vector<Step> found;
    AttrNodeList* list = &root;
    for (const Step& step : m_steps) {
        const AttrID name(getStepName(found.size()));
        if (list == nullptr || !list->isNodeAt(name, step.position)) {
            return false;
        }
        AttrNode& node = list->getNodeAt(step.position);
        found.push_back({list, &node, step.position, step.inSet});
        list = embeddedList(node);
    }
    AttrNodeList* const walked = isMissing() ? list : found.back().list;
    if (walked == nullptr) {
        return false;
    }
    m_list = walked;
    m_steps = std::move(found);
    return true;
}

} // namespace zent
