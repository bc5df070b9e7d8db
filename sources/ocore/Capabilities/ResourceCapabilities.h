#pragma once

#include <cstdint>

#include "ocore/Capabilities/CapabilitySource.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

/// A capability document that lies, compressed, in the resource library.
class ResourceCapabilities : public CapabilitySource {
public:
    explicit ResourceCapabilities(std::uint32_t resource) : m_resource(resource) {}

    void getDocument(ByteBuffer& document) const override;

private:
    ResourceLibrary m_library;
    std::uint32_t m_resource;
};

} // namespace zent
