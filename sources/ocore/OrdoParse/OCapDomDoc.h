#pragma once

#include "ocore/OrdoParse/TarvoDomDoc.h"

namespace zent {

/// The capability document of a printer: a flat list of attribute elements, not validated.
class OCapDomDoc final : public TarvoDomDoc {
public:
    OCapDomDoc(const CXString& streamName, bool validate) { createParser(streamName, validate); }

protected:
    std::string_view getSkeletonDocument() const override;
};

} // namespace zent
