#include "ocore/AnlXlate/OcapTranslator.h"

#include "ocore/OrdoParse/TarvoXmlFile.h"

namespace zent {

std::unique_ptr<TarvoXmlFile> OcapTranslator::createFileStream(const CXString& fileName) {
    return std::make_unique<TarvoXmlFile>(XmlDataType::ocap, fileName);
}

std::unique_ptr<TarvoXmlDataStream> OcapTranslator::createDataStream() {
    return std::make_unique<TarvoXmlDataStream>(XmlDataType::ocap);
}

} // namespace zent
