#include "ocore/AnlXlate/OrdoTranslator.h"

#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "ocore/OwnedCriticalResource.h"
#include "platform/Files.h"

namespace zent {

namespace {

constexpr const char16_t* dtdFileName = u"ordo-v02025.dtd";

CriticalResource dtdPathGuard(u"OrdoTranslator");
CXString dtdPath;

/// The path; nothing if no directory could be had.
std::optional<CXString> getDtdPath() {
    const OwnedCriticalResource hold(dtdPathGuard);
    if (dtdPath.isEmpty()) {
        const CXString directory = platform::getDriverDirectory(CXString());
        if (directory.isEmpty()) {
            return std::nullopt;
        }
        dtdPath = directory + dtdFileName;
    }
    return dtdPath;
}

} // namespace

void OrdoTranslator::setDtdDirectory(const CXString& directory) {
    const OwnedCriticalResource hold(dtdPathGuard);
    dtdPath = directory + dtdFileName;
}

std::unique_ptr<TarvoXmlFile> OrdoTranslator::createFileStream(const CXString& fileName) {
    return std::make_unique<TarvoXmlFile>(XmlDataType::ordo, fileName, getDtdPath());
}

std::unique_ptr<TarvoXmlDataStream> OrdoTranslator::createDataStream() {
    return std::make_unique<TarvoXmlDataStream>(XmlDataType::ordo, getDtdPath());
}

} // namespace zent
