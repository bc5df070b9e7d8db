#pragma once

#include "ocore/AnlXlate/AnlTranslatorForXml.h"

namespace zent {

/// Translates tickets to and from the small ordo document, in which names and values that the
/// feature tables know are replaced by their abbreviations. A text that merely looks like an
/// abbreviation, or begins with an asterisk, is written with an asterisk in front.
class SmallOrdoTranslator final : public AnlTranslatorForXml {
public:
    SmallOrdoTranslator() { setFormatted(false); }

protected:
    bool prepareForOutput(const AttrNodeList& source, AttrNodeList* target) override;
    void finishAfterInput(AttrNodeList* list) override;
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override;
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override;
};

} // namespace zent
