#include "ocore/OrdoParse/TarvoXmlDataStream.h"

#include <new>

#include "ocore/OrdoParse/OCapDomDoc.h"
#include "ocore/OrdoParse/OMediaPrefDomDoc.h"
#include "ocore/OrdoParse/OrdoDomDoc.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/SOrdoDomDoc.h"

namespace zent {

TarvoXmlDataStream::~TarvoXmlDataStream() = default;

void TarvoXmlDataStream::setInputBuffer(const void* bytes, std::size_t length) {
    m_input = bytes;
    m_inputLength = length;
}

void TarvoXmlDataStream::read(AttrNodeList* list) {
    if (m_input == nullptr || m_inputLength == 0) {
        raiseOrdoParse(ordoParseCode::noSourceBuffer,
                       "TarvoXmlDataStream::read(): No buffer to read from!\r\n");
    }
    const auto document = createDomDocument();
    document->parse({static_cast<const std::byte*>(m_input), m_inputLength});
    document->toAttrNodeList(list);
}

void TarvoXmlDataStream::write(const AttrNodeList* list) {
    if (m_output == nullptr) {
        raiseOrdoParse(ordoParseCode::noOutputReceiver,
                       "TarvoXmlDataStream::write(): No output callback object to receive XML "
                       "data.\r\n");
    }
    const auto document = createDomDocument();
    document->fromAttrNodeList(*list);
    document->toXmlStream(*m_output, m_formatted);
}

const CXString* TarvoXmlDataStream::findDtdName() const {
    return m_dtdName && !m_dtdName->isEmpty() ? &*m_dtdName : nullptr;
}

CXString TarvoXmlDataStream::getStreamName() const {
    const CXString* const dtdName = findDtdName();
    return dtdName != nullptr ? *dtdName : u"XmlStream";
}

std::unique_ptr<TarvoDomDoc> TarvoXmlDataStream::createDomDocument() const {
    std::unique_ptr<TarvoDomDoc> document;
    switch (m_type) {
    case XmlDataType::ordo:
        if (!m_dtdName) {
            raiseOrdoParse(ordoParseCode::noDtd,
                           "TarvoXmlDataStream::createDomDocument(): Validation required for "
                           "OrdoDomDoc, but it is not set. Did you specify a DTD?\r\n");
        }
        document.reset(new (std::nothrow) OrdoDomDoc(getStreamName(), true));
        break;
    case XmlDataType::ocap:
        document.reset(new (std::nothrow) OCapDomDoc(getStreamName(), findDtdName() != nullptr));
        break;
    case XmlDataType::mediaPreference:
        document.reset(new (std::nothrow)
                           OMediaPrefDomDoc(getStreamName(), findDtdName() != nullptr));
        break;
    case XmlDataType::smallOrdo:
        document.reset(new (std::nothrow) SOrdoDomDoc(getStreamName(), findDtdName() != nullptr));
        break;
    case XmlDataType::notSpecified:
    default:
        raiseOrdoParse(ordoParseCode::noDataType,
                       "TarvoXmlDataStream::createDomDocument(): Unknown or unsupported data "
                       "type!\r\n");
    }
    if (!document) {
        raiseOrdoParse(ordoParseCode::noDocument,
                       "TarvoXmlDataStream::createDomDocument(): The pointer to be returned is "
                       "NULL!\r\n");
    }
    document->setOrigin(m_origin);
    return document;
}

} // namespace zent
