#pragma once

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// Converts between a node list and one outside form. Made for one call, mostly on the stack; what
/// fails is raised as an exception, and a reading that fails leaves the target partly filled.
class AnlTranslator {
public:
    virtual ~AnlTranslator() = default;

    virtual void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) = 0;
    /// Appends to the target.
    virtual void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) = 0;
    virtual void anlFromFile(const CXString& fileName, AttrNodeList* target) = 0;
    virtual void anlToFile(const AttrNodeList& source, const CXString& fileName) = 0;

    /// A translator has no state that matters.
    bool operator==(const AnlTranslator& /*other*/) const { return true; }

protected:
    AnlTranslator() = default;
    AnlTranslator(const AnlTranslator&) = default;
    AnlTranslator& operator=(const AnlTranslator&) = default;
};

} // namespace zent
