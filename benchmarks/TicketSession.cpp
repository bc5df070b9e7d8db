#include "TicketSession.h"

#include <stdexcept>
#include <string>

namespace zent::bench {

void require(ZentResult result) {
    if (result != ZENT_OK) {
        throw std::runtime_error("a call of the library gave the result " + std::to_string(result));
    }
}

namespace {

ZentSessionType openSession() {
    constexpr std::uint32_t model = 1;
    constexpr std::uint32_t pdl = 1;
    constexpr ZentBool silent = 1;
    ZentSessionType session = nullptr;
    require(fnOpenSession(ZENT_INTERFACE_VERSION, model, pdl, ZENT_INSTRUCTIONS_XML, silent,
                          nullptr, 0, &session));
    return session;
}

} // namespace

void openAndClose() {
    ZentSessionType session = openSession();
    require(fnCloseSession(&session));
}

TicketSession::TicketSession() : m_session(openSession()) {
    require(fnGetTarvoJtSettingsFromSession(m_session, &m_settings));
    require(fnUnspecifyAllFeatures(m_session, m_settings));
}

TicketSession::~TicketSession() { fnCloseSession(&m_session); }

void TicketSession::importTicket(std::string_view bytes, std::uint32_t format) const {
    ZentBool problems = 0;
    ZentBool applied = 0;
    require(fnImportJobTicket(m_session, bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                              format, ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems,
                              &applied));
    if (applied == 0) {
        throw std::runtime_error("the ticket wasn't applied");
    }
}

std::string_view TicketSession::exportTicket(std::uint32_t format) {
    std::uint32_t size = 0;
    require(fnExportJobTicket(m_session, nullptr, &size, format));
    if (m_exported.size() < size) {
        m_exported.resize(size);
    }
    require(fnExportJobTicket(m_session, m_exported.data(), &size, format));
    return {m_exported.data(), size};
}

PageTicket::PageTicket(const TicketSession& owner) : m_session(owner.session()) {
    require(fnCreateNewTarvoJtSettings(m_session, &m_settings));
}

PageTicket::~PageTicket() { fnReleaseTarvoJtSettings(m_session, &m_settings); }

} // namespace zent::bench
