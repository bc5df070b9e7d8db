#include "ocore/OrdoParse/TarvoXmlFile.h"

#include <new>
#include <span>

#include "ocore/Faults/Trace.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "platform/System.h"

namespace zent {

namespace {

void traceLastError() { trace::systemErrorText(platform::getLastError(), traceLevel::xmlLayer); }

} // namespace

void TarvoXmlFile::read(AttrNodeList* list) {
    if (!m_fileName) {
        raiseOrdoParse(ordoParseCode::noFileToRead, "TarvoXmlFile::read(): No file to open.\r\n");
    }
    const auto file = platform::OpenFile::openForReading(*m_fileName);
    if (!file) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::openForReadingFailed,
                       "TarvoXmlFile::read(): Failed to open file %s.\r\n", *m_fileName);
    }
    std::uint64_t size = 0;
    if (!file->getSize(size)) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::fileSizeFailed,
                       "TarvoXmlFile::read(): Failed to get file size.\r\n");
    }
    // A file that the parser would refuse for its size isn't read at all.
    const std::unique_ptr<char[]> block(
        size <= xmlLimits::documentBytes ? new (std::nothrow) char[static_cast<std::size_t>(size)]()
                                         : nullptr);
    if (!block) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::fileBufferAllocationFailed,
                       "TarvoXmlFile::read(): Failed to allocate enough space. Needed %ld\r\n",
                       size);
    }
    std::size_t done = 0;
    const std::span<char> room(block.get(), static_cast<std::size_t>(size));
    if (!file->read(std::as_writable_bytes(room), done) || done != size) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::readFileFailed,
                       "TarvoXmlFile::read(): Failed to read. dwNumBytesRead = %ld\r\n", done);
    }
    setInputBuffer(block.get(), done);
    TarvoXmlDataStream::read(list);
}

void TarvoXmlFile::write(const AttrNodeList* list) {
    if (!m_fileName) {
        raiseOrdoParse(ordoParseCode::noFileToWrite, "TarvoXmlFile::write(): No file to open.\r\n");
    }
    m_file = platform::OpenFile::createForWriting(*m_fileName);
    if (!m_file) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::openForWritingFailed,
                       "TarvoXmlFile::write(): Failed to open/create the file.\r\n");
    }
    try {
        setOutput(this);
        TarvoXmlDataStream::write(list);
        m_file.reset();
    } catch (...) {
        m_file.reset();
        platform::deleteFile(*m_fileName);
        throw;
    }
}

CXString TarvoXmlFile::getStreamName() const {
    const bool isNamed = m_fileName && !m_fileName->isEmpty();
    return findDtdName() == nullptr && isNamed ? *m_fileName : TarvoXmlDataStream::getStreamName();
}

bool TarvoXmlFile::write(std::string_view bytes) {
    std::size_t done = 0;
    if (!m_file->write(std::as_bytes(std::span(bytes)), done) || done != bytes.size()) {
        traceLastError();
        raiseOrdoParse(ordoParseCode::writeFileFailed,
                       "TarvoXmlFile::handleOutput(): Failed WriteFile(). dwNumBytesWritten = "
                       "%ld\r\n",
                       done);
    }
    return true;
}

} // namespace zent
