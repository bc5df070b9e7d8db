#pragma once

#include "ocore/OrdoParse/TarvoDomDoc.h"

namespace zent {

/// The media library of a user: a flat list of attribute elements, not validated.
class OMediaPrefDomDoc final : public TarvoDomDoc {
public:
    OMediaPrefDomDoc(const CXString& streamName, bool validate) {
        createParser(streamName, validate);
    }

protected:
    std::string_view getSkeletonDocument() const override;
};

} // namespace zent
