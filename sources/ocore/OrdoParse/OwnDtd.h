#pragma once

#include <memory>

#include <xercesc/util/XMLEntityResolver.hpp>

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"

namespace zent {

class CompiledDtd;

/// Reads the file of a document type definition whole; null if there is none, it can't be read or
/// it is larger than a document may be.
std::unique_ptr<ByteBuffer> readDtdFile(const CXString& path);

/// Answers the parser's requests for external entities: by the library's own document type
/// definition, and nothing else. A system identifier means it if it ends in the file name, whatever
/// comes before that: a ticket may come from another folder, machine or system, where the address
/// was right. What isn't answered is a fatal error of the document.
class OwnDtd final : public xercesc::XMLEntityResolver {
public:
    /// With an empty path nothing resolves. What was compiled before is given out without asking
    /// the file system; it may be null.
    OwnDtd(const CXString& path, std::shared_ptr<const CompiledDtd> compiled);

    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

private:
    bool isMeantBy(const char16_t* systemId) const;

    CXString m_path;
    std::shared_ptr<const CompiledDtd> m_compiled;
    std::unique_ptr<ByteBuffer> m_bytes; // the parser refers to them until it is done
};

} // namespace zent
