#include "ocore/OrdoParse/DtdFolder.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>

#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "platform/Files.h"

namespace zent {

namespace {

/// A name that stands for a file of a folder and can't lead out of it, on any system.
bool isBareName(std::u16string_view name) {
    constexpr auto none = std::u16string_view::npos;
    return name.find_first_not_of(u'.') != none && name.find_first_of(u"/\\:") == none;
}

xercesc::InputSource* makeSource(const ByteBuffer& bytes, const CXString& path) {
    auto* const source = new xercesc::MemBufInputSource(
        static_cast<const XMLByte*>(static_cast<const void*>(bytes.data())), bytes.size(),
        path.c_str());
    source->setCopyBufToStream(false);
    return source;
}

} // namespace

std::unique_ptr<ByteBuffer> readEntityFile(const CXString& path) {
    const auto file = platform::OpenFile::openForReading(path);
    std::uint64_t size = 0;
    if (!file || !file->getSize(size) || size > xmlLimits::documentBytes) {
        return nullptr;
    }
    auto bytes = std::make_unique<ByteBuffer>();
    bytes->resize(static_cast<std::size_t>(size));
    std::size_t done = 0;
    const bool isWhole = file->read(bytes->data(), bytes->size(), done) && done == size;
    return isWhole ? std::move(bytes) : nullptr;
}

DtdFolder::DtdFolder(const CXString& dtdPath, std::shared_ptr<const CompiledDtd> compiled)
    : m_folder(dtdPath.left(dtdPath.findLast(platform::pathSeparator) + 1)),
      m_compiled(std::move(compiled)) {}

xercesc::InputSource* DtdFolder::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    const char16_t* const systemId = resource->getSystemId();
    if (m_folder.isEmpty() || systemId == nullptr) {
        return nullptr;
    }
    std::u16string_view name = systemId;
    if (name.starts_with(m_folder.view())) {
        name.remove_prefix(m_folder.view().size());
    }
    if (!isBareName(name)) {
        return nullptr;
    }
    const CXString path = m_folder + CXString(name);
    if (m_compiled && path == m_compiled->getPath()) {
        return makeSource(m_compiled->getBytes(), path);
    }
    auto bytes = readEntityFile(path);
    if (!bytes) {
        return nullptr;
    }
    m_files.push_back(std::move(bytes));
    return makeSource(*m_files.back(), path);
}

} // namespace zent
