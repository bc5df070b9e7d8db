#include "ocore/AnlXlate/OrdoDtd.h"

#include <array>
#include <cstdint>

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "platform/Files.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

constexpr const char16_t* dtdFileName = u"ordo-v02025.dtd";

CriticalResource& dtdPathGuard = keepForever<CriticalResource>(u"OrdoTranslator");
CXString& dtdPath = keepForever<CXString>();

/// Tells declared names from others. A ticket uses few names over and over, and most nodes of one
/// name share its text, so that the address of a text is looked up before its content.
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

void ordoDtd::setDirectory(const CXString& directory) {
    const OwnedCriticalResource hold(dtdPathGuard);
    dtdPath = directory + dtdFileName;
}

std::optional<CXString> ordoDtd::findPath() {
    const OwnedCriticalResource hold(dtdPathGuard);
    if (dtdPath.isEmpty()) {
        const std::u16string directory = platform::getDriverDirectory();
        if (directory.empty()) {
            return std::nullopt;
        }
        dtdPath = directory + dtdFileName;
    }
    return dtdPath;
}

void ordoDtd::requireReadable(const AttrNodeList& list) {
    ZNXMLInterface::Instance();
    const std::optional<CXString> path = findPath();
    const auto dtd = path ? CompiledDtd::find(*path) : nullptr;
    if (dtd != nullptr) { // without it, the writing fails
        DeclaredNames(*dtd).require(list);
    }
}

} // namespace zent
