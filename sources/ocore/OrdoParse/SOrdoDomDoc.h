#pragma once

#include "ocore/OrdoParse/TarvoDomDoc.h"

namespace zent {

/// The small ordo document: a ticket as it lies in a state blob, with short codes for the syntaxes.
/// It is for this system alone.
class SOrdoDomDoc final : public TarvoDomDoc {
public:
    SOrdoDomDoc(const CXString& streamName, bool validate) { createParser(streamName, validate); }

protected:
    std::string_view getSkeletonDocument() const override;
    std::u16string_view getSyntaxAttributeName() const override;
    CXString syntaxToDocument(const CXString& syntax) const override;
    CXString syntaxFromDocument(const CXString& text) const override;
};

} // namespace zent
