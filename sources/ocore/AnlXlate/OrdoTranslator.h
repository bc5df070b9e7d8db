#pragma once

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

/// Translates job tickets to and from the ordo document, the public XML form. It is validated in
/// both directions, so that nothing can be read or written without its document type definition.
class OrdoTranslator final : public AnlTranslatorForXml {
public:
    /// Says, for the whole process, where "ordo-v02025.dtd" lies: the directory with its trailing
    /// separator. Until then it is looked for where driver files lie.
    static void setDtdDirectory(const CXString& directory);

    /// Raises OrdoParseException unless what is written of a list can be read again: a list that
    /// comes from elsewhere may hold members that the document type doesn't declare.
    static void requireReadable(const AttrNodeList& list);

    /// Documents in buffers come as such unless it is set.
    void setOrigin(XmlOrigin origin) { m_origin = origin; }

protected:
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override;
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override;

private:
    XmlOrigin m_origin = XmlOrigin::document;
};

} // namespace zent
