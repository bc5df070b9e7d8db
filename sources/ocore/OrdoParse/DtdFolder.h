#pragma once

#include <memory>
#include <vector>

#include <xercesc/util/XMLEntityResolver.hpp>

#include "ocore/ByteBuffer.h"
#include "ocore/CXString.h"

namespace zent {

class CompiledDtd;

/// Reads a file whole; null if there is none, it can't be read or it is larger than a document may
/// be.
std::unique_ptr<ByteBuffer> readEntityFile(const CXString& path);

/// Answers the parser's requests for external entities: by files that lie in the folder of the
/// document type definition, and nothing else. A document names one by its bare name or by the full
/// path of that folder and the bare name; no URL, no way up or down. What isn't answered is a fatal
/// error of the document.
class DtdFolder final : public xercesc::XMLEntityResolver {
public:
    /// With an empty path nothing resolves. What was compiled before is given out without asking
    /// the file system; it may be null.
    DtdFolder(const CXString& dtdPath, std::shared_ptr<const CompiledDtd> compiled);

    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

private:
    CXString m_folder; // with its trailing separator
    std::shared_ptr<const CompiledDtd> m_compiled;
    // The parser refers to the bytes until it is done.
    std::vector<std::unique_ptr<ByteBuffer>> m_files;
};

} // namespace zent
