#include "ocore/AnlXlate/OrdoTranslator.h"

#include <array>
#include <cstdint>
#include <optional>

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "ocore/OwnedCriticalResource.h"
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

/// What a list has to keep to so that its document can be read.
class Readability {
public:
    /// Without a definition, which then can't be compiled, all names pass.
    explicit Readability(const CompiledDtd* dtd) : m_dtd(dtd) {}

    /// `level` counts the elements around those of the list.
    void require(const AttrNodeList& list, std::uint32_t level) {
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            if (node.isPrivate()) {
                continue;
            }
            if (level == xmlLimits::depth) {
                raiseOrdoParse(ordoParseCode::outputFailed,
                               "OrdoTranslator::requireReadable(): Elements would be nested "
                               "deeper than %lu levels.\r\n",
                               xmlLimits::depth);
            }
            requireDeclared(node.getName());
            if (const AttrNodeList* const members = embeddedList(node)) {
                require(*members, level + 1);
            }
        }
    }

private:
    /// Few names occur over and over, and most nodes of one name share its text.
    void requireDeclared(const CXString& name) {
        const char16_t* const text = name.c_str();
        const char16_t*& known =
            m_known[reinterpret_cast<std::uintptr_t>(text) / 16 % m_known.size()];
        if (known == text || m_dtd == nullptr) {
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
    constexpr std::uint32_t rootAndCategory = 2;
    Readability(dtd.get()).require(list, rootAndCategory);
}

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
