#pragma once

#include <cstddef>
#include <optional>

#include "ocore/OrdoParse/XmlForm.h"
#include "ocore/Resources/Stream.h"

namespace zent {

class TarvoDomDoc;

/// One XML form as a node list, from and to memory. Set the buffer, then read; set the output,
/// then write.
class TarvoXmlDataStream {
public:
    /// The name of the document type definition is the full path of its file.
    explicit TarvoXmlDataStream(const XmlForm& form, std::optional<CXString> dtdName = std::nullopt)
        : m_form(form), m_dtdName(std::move(dtdName)) {}
    virtual ~TarvoXmlDataStream() = default;
    TarvoXmlDataStream(const TarvoXmlDataStream&) = delete;
    TarvoXmlDataStream& operator=(const TarvoXmlDataStream&) = delete;

    /// Where documents come from; unless this is set, they come as such, and not in a blob.
    void setOrigin(XmlOrigin origin) { m_origin = origin; }
    /// The bytes must outlive the reading; null or no bytes fail it.
    virtual void setInputBuffer(const void* bytes, std::size_t length);
    /// The output must outlive the writing.
    void setOutput(Stream* output) { m_output = output; }
    /// Whether documents are laid out with line breaks and tabs. On to begin with.
    void setFormatted(bool formatted) { m_formatted = formatted; }

    /// Adds the document's nodes to a list. On failure the list keeps what was added before.
    virtual void read(AttrNodeList* list);
    virtual void write(const AttrNodeList* list);
    /// What the parser calls the document.
    virtual CXString getStreamName() const;

protected:
    /// Null if there is none, or none but an empty one.
    const CXString* findDtdName() const;

private:
    TarvoDomDoc createDomDocument() const;

    const XmlForm& m_form;
    XmlOrigin m_origin = XmlOrigin::document;
    const void* m_input = nullptr;
    std::size_t m_inputLength = 0;
    Stream* m_output = nullptr;
    bool m_formatted = true;
    std::optional<CXString> m_dtdName;
};

} // namespace zent
