#include "ocore/AnlXlate/OmpTranslator.h"

#include "ocore/OrdoParse/TarvoXmlFile.h"

namespace zent {

std::unique_ptr<TarvoXmlFile> OmpTranslator::createFileStream(const CXString& fileName) {
    return std::make_unique<TarvoXmlFile>(XmlDataType::mediaPreference, fileName);
}

std::unique_ptr<TarvoXmlDataStream> OmpTranslator::createDataStream() {
    return std::make_unique<TarvoXmlDataStream>(XmlDataType::mediaPreference);
}

} // namespace zent
