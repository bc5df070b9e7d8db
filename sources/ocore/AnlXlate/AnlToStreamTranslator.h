#pragma once

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Resources/Stream.h"

namespace zent {

/// Writes a node list in one outside form to a stream.
class AnlToStreamTranslator {
public:
    virtual ~AnlToStreamTranslator() = default;
    virtual void translate(const AttrNodeList& source, Stream& target) = 0;

protected:
    AnlToStreamTranslator() = default;
    AnlToStreamTranslator(const AnlToStreamTranslator&) = default;
    AnlToStreamTranslator& operator=(const AnlToStreamTranslator&) = default;
};

} // namespace zent
