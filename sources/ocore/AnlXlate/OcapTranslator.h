#pragma once

#include "ocore/AnlXlate/AnlTranslatorForXml.h"

namespace zent {

/// Translates capability lists to and from the capability document.
class OcapTranslator final : public AnlTranslatorForXml {
protected:
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override;
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override;
};

} // namespace zent
