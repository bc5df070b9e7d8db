#pragma once

#include <map>
#include <memory>
#include <string_view>

#include "platform/Lock.h"

namespace zent {

class XmlDocument;

/// Empty documents that writing starts from, each parsed once. May be shared by threads.
class KeptSkeletons {
public:
    KeptSkeletons();
    ~KeptSkeletons();
    KeptSkeletons(const KeptSkeletons&) = delete;
    KeptSkeletons& operator=(const KeptSkeletons&) = delete;

    /// The document that a literal of the program gave when it was parsed; null before that.
    std::shared_ptr<const XmlDocument> find(std::string_view skeleton) const;
    /// Keeps a copy of the document.
    void keep(std::string_view skeleton, const XmlDocument& document);

private:
    mutable platform::Lock m_lock;
    std::map<std::string_view, std::shared_ptr<const XmlDocument>> m_documents;
};

} // namespace zent
