#pragma once

#include "ocore/AnlXlate/AnlTranslatorForXml.h"

namespace zent {

/// Translates job tickets to and from the ordo document, the public XML form. It is validated in
/// both directions, so that nothing can be read or written without its document type definition.
class OrdoTranslator final : public AnlTranslatorForXml {
public:
    /// Says, for the whole process, where "ordo-v02025.dtd" lies: the directory with its trailing
    /// separator. Until then it is looked for where driver files lie.
    static void setDtdDirectory(const CXString& directory);

    /// Raises OrdoParseException unless what is written of a list can be read again: a list that
    /// comes from elsewhere may hold members that the document type doesn't declare, or nest too
    /// deep.
    static void requireReadable(const AttrNodeList& list);

protected:
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override;
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override;
};

} // namespace zent
