#include "ocore/AnlXlate/OrdoTranslator.h"

#include <array>
#include <cstdint>
#include <optional>

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "platform/Files.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

constexpr const char16_t* dtdFileName = u"ordo-v02025.dtd";

CriticalResource& dtdPathGuard = keepForever<CriticalResource>(u"OrdoTranslator");
CXString& dtdPath = keepForever<CXString>();

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

/// Looks for names that aren't declared. Few names occur over and over, and most nodes of one name
/// share its text.
class DeclaredNames {
public:
    explicit DeclaredNames(const CompiledDtd& dtd) : m_dtd(&dtd) {}

    void require(const AttrNodeList& list) {
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            if (node.isPrivate()) {
                continue;
            }
            require(node.getName());
            if (const AttrNodeList* const members = embeddedList(node)) {
                require(*members);
            }
        }
    }

private:
    void require(const CXString& name) {
        const char16_t* const text = name.c_str();
        const char16_t*& known =
            m_known[reinterpret_cast<std::uintptr_t>(text) / 16 % m_known.size()];
        if (known == text) {
            return;
        }
        if (!m_dtd->declaresElement(name)) {
            raiseOrdoParse(ordoParseCode::noCategory,
                           "OrdoTranslator::requireReadable(): The document type doesn't declare "
                           "%s!\r\n",
                           name);
        }
        known = text;
    }

    const CompiledDtd* m_dtd;
    std::array<const char16_t*, 64> m_known{};
};

} // namespace

void OrdoTranslator::requireReadable(const AttrNodeList& list) {
    ZNXMLInterface::Instance();
    const std::optional<CXString> path = getDtdPath();
    const auto dtd = path ? CompiledDtd::find(*path) : nullptr;
    if (dtd != nullptr) { // without it, the writing fails
        DeclaredNames(*dtd).require(list);
    }
}

void OrdoTranslator::setDtdDirectory(const CXString& directory) {
    const OwnedCriticalResource hold(dtdPathGuard);
    dtdPath = directory + dtdFileName;
}

std::unique_ptr<TarvoXmlFile> OrdoTranslator::createFileStream(const CXString& fileName) {
    return std::make_unique<TarvoXmlFile>(XmlDataType::ordo, fileName, getDtdPath());
}

std::unique_ptr<TarvoXmlDataStream> OrdoTranslator::createDataStream() {
    auto stream = std::make_unique<TarvoXmlDataStream>(XmlDataType::ordo, getDtdPath());
    stream->setOrigin(m_origin);
    return stream;
}

} // namespace zent
