// Hostile tickets: fnImportJobTicket. What it lets in goes out by fnExportJobTicket, and must come
// in again as it was.
//
// Input: the bytes of a document.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "ocore/AnlXlate/OrdoTranslator.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "zent27.h"

namespace {

using zent::AttrNode;
using zent::AttrNodeList;
using zent::AttrValue;
using zent::CXString;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// One silent session for all inputs, so that what an input leaves behind meets the next one.
class Session {
public:
    Session() {
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0,
                              &m_session) == ZENT_OK);
        TarvoJtSettingsType handle = nullptr;
        require(fnGetTarvoJtSettingsFromSession(m_session, &handle) == ZENT_OK);
        m_settings = reinterpret_cast<zent::FeatureSettings*>(handle);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { fnCloseSession(&m_session); }

    ZentResult importTicket(const void* data, std::size_t size) {
        ZentBool problems = 0;
        ZentBool applied = 0;
        const ZentResult result =
            fnImportJobTicket(m_session, data, static_cast<std::uint32_t>(size), ZENT_FORMAT_XML,
                              ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems, &applied);
        require((result == ZENT_OK) == (applied == 1));
        return result;
    }

    ZentResult exportTicket(std::vector<char>& bytes) {
        std::uint32_t size = 0;
        const ZentResult result = fnExportJobTicket(m_session, nullptr, &size, ZENT_FORMAT_XML);
        bytes.resize(size);
        if (result == ZENT_OK) {
            require(fnExportJobTicket(m_session, bytes.data(), &size, ZENT_FORMAT_XML) == ZENT_OK);
        }
        return result;
    }

    /// What a failed export has left would be the next one's result; a change drops it.
    void dropExport() {
        require(fnUnspecifyAllFeatures(
                    m_session, reinterpret_cast<TarvoJtSettingsType>(m_settings)) == ZENT_OK);
    }

    const AttrNodeList& getList() const { return *m_settings->getAttrNodeList(); }

private:
    ZentSessionType m_session = nullptr;
    zent::FeatureSettings* m_settings = nullptr;
};

const AttrNodeList& listOf(const AttrValue& value) {
    return static_cast<const zent::IppList&>(value).getAttrNodeList();
}

int depthOf(const AttrNodeList& list) {
    int deepest = 0;
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        const AttrValue& value = list.getNodeAt(i).getAttrValue();
        deepest = std::max(deepest, value.isList() ? depthOf(listOf(value)) : 0);
    }
    return deepest + 1;
}

CXString trimmed(CXString text) {
    text.trim();
    return text;
}

/// A value without text and a list without members are written, but not read back.
bool isReadBack(const AttrValue& value) {
    return value.isList() ? listOf(value).getNumberOfNodes() != 0 : !value.getIppValue().isEmpty();
}

/// Texts keep their white space only as names and texts; a text that is nothing else is read as a
/// list. A document of XML 1.1 can hold characters that can't be written; they become others.
void requireSameText(const AttrValue& written, const AttrValue& read) {
    const CXString text = written.getIppValue();
    if (!written.isSpacePreserved() && trimmed(text).isEmpty()) {
        require(read.isList() && listOf(read).getNumberOfNodes() == 0);
        return;
    }
    require(read.getAttrValueType() == written.getAttrValueType());
    require(read.getIppSyntax() == written.getIppSyntax());
    for (const char16_t unit : text.view()) {
        if (unit < u' ' || unit >= 0xFFFE) {
            return;
        }
    }
    require(written.isSpacePreserved() ? read.getIppValue() == text
                                       : read.getIppValue() == trimmed(text));
}

void requireSameList(const AttrNodeList& written, const AttrNodeList& read) {
    std::uint32_t place = 0;
    for (std::uint32_t i = 0; i < written.getNumberOfNodes(); ++i) {
        const AttrNode& node = written.getNodeAt(i);
        const AttrValue& value = node.getAttrValue();
        if (!isReadBack(value)) {
            continue;
        }
        require(place < read.getNumberOfNodes());
        const AttrNode& other = read.getNodeAt(place++);
        require(other.getName() == node.getName());
        if (value.isList()) {
            require(other.getAttrValue().isList());
            requireSameList(listOf(value), listOf(other.getAttrValue()));
        } else {
            requireSameText(value, other.getAttrValue());
        }
    }
    require(place == read.getNumberOfNodes());
}

void requireNamedFailure(ZentResult result) {
    require(result >= ZENT_OK && result < ZENT_ERR_STD_EXCEPTION);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // What is written stands in a category, one level deeper than what is read may stand.
    constexpr int deepest = 97;
    static Session session;

    const std::uint32_t before = session.getList().getNumberOfNodes();
    const ZentResult result = session.importTicket(data, size);
    requireNamedFailure(result);
    if (result != ZENT_OK) {
        require(session.getList().getNumberOfNodes() == before);
        return 0;
    }

    std::vector<char> bytes;
    const ZentResult written = session.exportTicket(bytes);
    if (written != ZENT_OK) {
        // The root may be any element, and then what it holds has no category to stand in.
        require(written == ZENT_ERR_XML_GENERATE);
        session.dropExport();
        return 0;
    }
    if (depthOf(session.getList()) > deepest) {
        return 0;
    }
    AttrNodeList read;
    zent::OrdoTranslator().anlFromBuffer({bytes.data(), bytes.size()}, &read);
    requireSameList(session.getList(), read);
    require(session.importTicket(bytes.data(), bytes.size()) == ZENT_OK);
    return 0;
}
