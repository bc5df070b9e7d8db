#include "ocore/OrdoParse/OwnDtd.h"

#include <string_view>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>

#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "platform/Files.h"

namespace zent {

std::unique_ptr<ByteBuffer> readDtdFile(const CXString& path) {
    if (platform::isBareName(path)) { // the library's own folder isn't known
        return nullptr;
    }
    const auto file = platform::OpenFile::openForReading(path);
    std::uint64_t size = 0;
    if (!file || !file->getSize(size) || size > xmlLimits::documentBytes) {
        return nullptr;
    }
    auto bytes = std::make_unique<ByteBuffer>();
    bytes->resize(static_cast<std::size_t>(size));
    std::size_t done = 0;
    const bool isWhole = file->read({bytes->data(), bytes->size()}, done) && done == size;
    return isWhole ? std::move(bytes) : nullptr;
}

OwnDtd::OwnDtd(const CXString& path, std::shared_ptr<const CompiledDtd> compiled)
    : m_path(path), m_compiled(std::move(compiled)) {}

bool OwnDtd::isMeantBy(const char16_t* systemId) const {
    const CXString fileName = m_path.mid(m_path.findLast(platform::pathSeparator) + 1);
    return systemId != nullptr && !fileName.isEmpty() &&
           std::u16string_view(systemId).ends_with(fileName.view());
}

xercesc::InputSource* OwnDtd::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    if (!isMeantBy(resource->getSystemId())) {
        return nullptr;
    }
    if (!m_compiled && !m_bytes) {
        m_bytes = readDtdFile(m_path);
    }
    const ByteBuffer* const bytes = m_compiled ? &m_compiled->getBytes() : m_bytes.get();
    if (bytes == nullptr) {
        return nullptr;
    }
    auto* const source = new xercesc::MemBufInputSource(
        static_cast<const XMLByte*>(static_cast<const void*>(bytes->data())), bytes->size(),
        m_path.c_str());
    source->setCopyBufToStream(false);
    return source;
}

} // namespace zent
