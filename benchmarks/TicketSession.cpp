#include "TicketSession.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace zent::bench {

void require(ZentResult result) {
    if (result != ZENT_OK) {
        throw std::runtime_error("a call of the library gave the result " + std::to_string(result));
    }
}

TicketSession::TicketSession() {
    constexpr std::uint32_t model = 1;
    constexpr std::uint32_t pdl = 1;
    constexpr ZentBool silent = 1;
    require(fnOpenSession(ZENT_INTERFACE_VERSION, model, pdl, ZENT_INSTRUCTIONS_XML, silent,
                          nullptr, 0, &m_session));
    require(fnGetTarvoJtSettingsFromSession(m_session, &m_settings));
}

TicketSession::~TicketSession() { fnCloseSession(&m_session); }

void TicketSession::importTicket(std::string_view xml) const {
    ZentBool problems = 0;
    ZentBool applied = 0;
    require(fnImportJobTicket(m_session, xml.data(), static_cast<std::uint32_t>(xml.size()),
                              ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems,
                              &applied));
    if (applied == 0) {
        throw std::runtime_error("the ticket wasn't applied");
    }
}

std::string_view TicketSession::exportTicket() {
    std::uint32_t size = 0;
    require(fnExportJobTicket(m_session, nullptr, &size, ZENT_FORMAT_XML));
    if (m_exported.size() < size) {
        m_exported.resize(size);
    }
    require(fnExportJobTicket(m_session, m_exported.data(), &size, ZENT_FORMAT_XML));
    return {m_exported.data(), size};
}

PageTicket::PageTicket(const TicketSession& owner) : m_session(owner.session()) {
    require(fnCreateNewTarvoJtSettings(m_session, &m_settings));
}

PageTicket::~PageTicket() { fnReleaseTarvoJtSettings(m_session, &m_settings); }

} // namespace zent::bench
