#include "ocore/OrdoParse/TarvoXmlDataStream.h"

#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/TarvoDomDoc.h"

namespace zent {

void TarvoXmlDataStream::setInputBuffer(const void* bytes, std::size_t length) {
    m_input = bytes;
    m_inputLength = length;
}

void TarvoXmlDataStream::read(AttrNodeList* list) {
    if (m_input == nullptr || m_inputLength == 0) {
        raiseOrdoParse(ordoParseCode::noSourceBuffer,
                       "TarvoXmlDataStream::read(): No buffer to read from!\r\n");
    }
    TarvoDomDoc document = createDomDocument();
    document.parse({static_cast<const std::byte*>(m_input), m_inputLength});
    document.toAttrNodeList(list);
}

void TarvoXmlDataStream::write(const AttrNodeList* list) {
    if (m_output == nullptr) {
        raiseOrdoParse(ordoParseCode::noOutputReceiver,
                       "TarvoXmlDataStream::write(): No output callback object to receive XML "
                       "data.\r\n");
    }
    TarvoDomDoc document = createDomDocument();
    document.fromAttrNodeList(*list);
    document.toXmlStream(*m_output, m_formatted);
}

const CXString* TarvoXmlDataStream::findDtdName() const {
    return m_dtdName && !m_dtdName->isEmpty() ? &*m_dtdName : nullptr;
}

CXString TarvoXmlDataStream::getStreamName() const {
    const CXString* const dtdName = findDtdName();
    return dtdName != nullptr ? *dtdName : u"XmlStream";
}

TarvoDomDoc TarvoXmlDataStream::createDomDocument() const {
    const bool isAlwaysValidated = m_form.findDtdPath != nullptr;
    if (isAlwaysValidated && !m_dtdName) {
        raiseOrdoParse(ordoParseCode::noDtd,
                       "TarvoXmlDataStream::createDomDocument(): Validation required for "
                       "OrdoDomDoc, but it is not set. Did you specify a DTD?\r\n");
    }
    return {m_form, m_origin, getStreamName(), isAlwaysValidated || findDtdName() != nullptr};
}

} // namespace zent
