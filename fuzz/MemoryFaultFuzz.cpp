// Memory that runs out for one moment while a hostile ticket or blob comes in and goes out again:
// the call says so or has got over it, the session keeps its ticket, and the same call, when there
// is memory again, ends as it would have ended at first.
//
// Input: a number of two bytes for the allocation that fails, a byte that says whether the rest is
// a document or a blob, and its bytes.

#include <cstdint>
#include <new>
#include <vector>

#include "SameList.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "support/AllocationFailure.h"
#include "zent27.h"

namespace {

using zent::AttrNodeList;
using zent::fuzz::require;
using zent::test::AllocationFailure;

class Session {
public:
    Session() {
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 43, 2, ZENT_INSTRUCTIONS_BY_MODEL, 1, nullptr,
                              0, &m_session) == ZENT_OK);
        TarvoJtSettingsType handle = nullptr;
        require(fnGetTarvoJtSettingsFromSession(m_session, &handle) == ZENT_OK);
        m_settings = reinterpret_cast<zent::FeatureSettings*>(handle);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { fnCloseSession(&m_session); }

    ZentResult importTicket(const std::vector<char>& bytes, std::uint32_t format) {
        ZentBool problems = 0;
        ZentBool applied = 0;
        return fnImportJobTicket(m_session, bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                                 format, ZENT_APPLY_SILENT_REPAIR, nullptr, nullptr, &problems,
                                 &applied);
    }
    ZentResult exportTicket(std::uint32_t format) {
        std::vector<char> bytes;
        std::uint32_t size = 0;
        const ZentResult result = fnExportJobTicket(m_session, nullptr, &size, format);
        if (result != ZENT_OK) {
            return result;
        }
        try {
            bytes.resize(size);
        } catch (const std::bad_alloc&) { // the allocation that fails is the caller's
            return ZENT_ERR_OUT_OF_MEMORY;
        }
        return fnExportJobTicket(m_session, bytes.data(), &size, format);
    }
    ZentResult makeInstructions() {
        std::uint32_t size = 0;
        return fnGetPrintInstructions(m_session, nullptr, &size, "a document");
    }
    const AttrNodeList& getList() const { return *m_settings->getAttrNodeList(); }

private:
    ZentSessionType m_session = nullptr;
    zent::FeatureSettings* m_settings = nullptr;
};

/// Whether a result says that memory ran out, or that no document could be made for want of it.
bool saysSo(ZentResult result) {
    return result == ZENT_ERR_OUT_OF_MEMORY || result == ZENT_ERR_XML_OTHER;
}

/// Runs a call in which one allocation fails. True if the call reports it.
template <typename Call>
bool runsOut(std::uint32_t allocationsBefore, ZentResult& result, const Call& call) {
    const AllocationFailure failure(allocationsBefore);
    result = call();
    return failure.hasHappened() && saysSo(result);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 3;
    if (size < choices) {
        return 0;
    }
    static Session session;
    const std::uint32_t allocationsBefore = data[0] + 256U * data[1];
    const std::uint32_t format = data[2] % 2 == 0 ? ZENT_FORMAT_XML : ZENT_FORMAT_STATE;
    const std::vector<char> bytes(data + choices, data + size);

    const AttrNodeList before = session.getList();
    ZentResult result = ZENT_OK;
    if (runsOut(allocationsBefore, result, [&] { return session.importTicket(bytes, format); })) {
        zent::fuzz::requireUnchanged(before, session.getList());
    } else {
        require(result < ZENT_ERR_STD_EXCEPTION);
    }
    const ZentResult expected = session.importTicket(bytes, format);
    require(expected < ZENT_ERR_STD_EXCEPTION);
    require(saysSo(result) || result == expected);

    for (const std::uint32_t other : {ZENT_FORMAT_XML, ZENT_FORMAT_STATE}) {
        if (runsOut(allocationsBefore, result, [&] { return session.exportTicket(other); })) {
            require(session.importTicket(bytes, format) == expected);
        }
    }
    if (runsOut(allocationsBefore, result, [&] { return session.makeInstructions(); })) {
        require(session.importTicket(bytes, format) == expected);
    }
    return 0;
}
