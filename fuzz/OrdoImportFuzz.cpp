// Hostile tickets: fnImportJobTicket. What it lets in goes out by fnExportJobTicket, and must come
// in again as it was.
//
// Input: the bytes of a document.

#include <cstdint>
#include <string>
#include <vector>

#include "SameList.h"
#include "SeenLists.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "zent27.h"

namespace {

using zent::AttrNodeList;
using zent::fuzz::require;
using zent::fuzz::requireSameList;

/// One silent session for all inputs, so that each input meets what the last one has left.
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

    /// Makes a change, which drops what a failed export has left. Otherwise that would be the
    /// result of the next export.
    void dropExport() {
        require(fnUnspecifyAllFeatures(
                    m_session, reinterpret_cast<TarvoJtSettingsType>(m_settings)) == ZENT_OK);
    }

    const AttrNodeList& getList() const { return *m_settings->getAttrNodeList(); }

private:
    ZentSessionType m_session = nullptr;
    zent::FeatureSettings* m_settings = nullptr;
};

/// Puts a list into the order of a document: by its two categories, of which that of the first
/// attribute comes first.
AttrNodeList groupByCategory(const AttrNodeList& list) {
    AttrNodeList first;
    AttrNodeList second;
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        const bool isLikeFirst = zent::findOrdoCategory(list.getNodeAt(i).getName().view()) ==
                                 zent::findOrdoCategory(list.getNodeAt(0).getName().view());
        (isLikeFirst ? first : second).addNode(list.getNodeAt(i));
    }
    for (std::uint32_t i = 0; i < second.getNumberOfNodes(); ++i) {
        first.addNode(second.getNodeAt(i));
    }
    return first;
}

void requireNamedFailure(ZentResult result) {
    require(result >= ZENT_OK && result < ZENT_ERR_STD_EXCEPTION);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Session session;

    const std::uint32_t before = session.getList().getNumberOfNodes();
    const ZentResult result = session.importTicket(data, size);
    requireNamedFailure(result);
    if (result != ZENT_OK) {
        require(session.getList().getNumberOfNodes() == before);
        return 0;
    }
    static zent::fuzz::SeenLists seen;
    if (!seen.isNew(session.getList())) {
        return 0;
    }

    std::vector<char> bytes;
    const ZentResult written = session.exportTicket(bytes);
    if (written != ZENT_OK) {
        // A part of an attribute on top has no category to stand in. What is written stands in one,
        // deeper than what is read may stand.
        require(written == ZENT_ERR_XML_GENERATE);
        session.dropExport();
        return 0;
    }
    AttrNodeList read;
    zent::OrdoTranslator().anlFromBuffer({bytes.data(), bytes.size()}, &read);
    requireSameList(groupByCategory(session.getList()), read);
    return 0;
}
