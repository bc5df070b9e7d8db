#include "ocore/Capabilities/ResourceCapabilities.h"

#include "ocore/Compress/CompressedBuffer.h"

namespace zent {

void ResourceCapabilities::getDocument(ByteBuffer& document) const {
    const ResourceData resource = m_library.loadRawData(m_resource);
    CompressedBuffer::uncompressBuffer(resource.getBytes(), document);
}

} // namespace zent
