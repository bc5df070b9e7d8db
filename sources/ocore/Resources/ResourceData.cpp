#include "ocore/Resources/ResourceData.h"

#include "ocore/Faults/Exceptions.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

const std::byte* ResourceData::getResourceData() const {
    if (m_bytes.isEmpty()) {
        Raise<ResourceAcquisitionException>()(
            "ResourceData::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
    }
    return m_bytes.data();
}

void ResourceData::setResourceType(std::uint32_t type) {
    switch (type) {
    case resourceType::cursor:
    case resourceType::bitmap:
    case resourceType::icon:
    case resourceType::dialog:
    case resourceType::rawData:
        m_type = type;
        break;
    default:
        Raise<UnknownCaseException>()(
            "ResourceData::setResourceType() EXCEPTION - unknown switch (RT_) value\r\n");
    }
}

} // namespace zent
