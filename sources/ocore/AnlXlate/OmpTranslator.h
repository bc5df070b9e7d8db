#pragma once

#include "ocore/AnlXlate/AnlTranslatorForXml.h"

namespace zent {

/// Translates a user's media library to and from the media preference document.
class OmpTranslator final : public AnlTranslatorForXml {
protected:
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override;
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override;
};

} // namespace zent
