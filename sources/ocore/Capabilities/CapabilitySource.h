#pragma once

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// Where the capability document of a printer comes from.
class CapabilitySource {
public:
    virtual ~CapabilitySource() = default;

    /// Fills a buffer with the document's bytes.
    virtual void getDocument(ByteBuffer& document) const = 0;
    /// Appends the document's capabilities to a list; raises what reading a document raises.
    void load(AttrNodeList& list) const;

protected:
    CapabilitySource() = default;
    CapabilitySource(const CapabilitySource&) = default;
    CapabilitySource& operator=(const CapabilitySource&) = default;
};

} // namespace zent
