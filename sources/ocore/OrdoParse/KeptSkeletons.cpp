#include "ocore/OrdoParse/KeptSkeletons.h"

#include "ocore/OrdoParse/XmlDocument.h"

namespace zent {

KeptSkeletons::KeptSkeletons() = default;

KeptSkeletons::~KeptSkeletons() = default;

std::shared_ptr<const XmlDocument> KeptSkeletons::find(std::string_view skeleton) const {
    const platform::LockHold hold(m_lock);
    const auto found = m_documents.find(skeleton);
    return found == m_documents.end() ? nullptr : found->second;
}

void KeptSkeletons::keep(std::string_view skeleton, const XmlDocument& document) {
    const auto copy = std::make_shared<XmlDocument>();
    copy->appendCopy(document);
    const platform::LockHold hold(m_lock);
    m_documents[skeleton] = copy;
}

} // namespace zent
