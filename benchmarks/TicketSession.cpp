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

ZentSessionType openSession(const PrinterChoice& printer) {
    constexpr ZentBool silent = 1;
    ZentSessionType session = nullptr;
    require(fnOpenSession(ZENT_INTERFACE_VERSION, printer.model, printer.pdl, printer.form, silent,
                          nullptr, 0, &session));
    return session;
}

} // namespace

void openAndClose() {
    ZentSessionType session = openSession({});
    require(fnCloseSession(&session));
}

TicketSession::TicketSession(const PrinterChoice& printer) : m_session(openSession(printer)) {
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

bool TicketSession::applyCapabilities(std::uint32_t mode) const {
    ZentBool problems = 0;
    ZentBool usable = 0;
    require(fnApplyPrinterCapabilitiesToSettings(m_session, mode, nullptr, nullptr, &problems,
                                                 &usable));
    return problems != 0;
}

template <typename Call>
std::string_view TicketSession::fetch(Call call) {
    std::uint32_t size = 0;
    require(call(nullptr, &size));
    if (m_fetched.size() < size) {
        m_fetched.resize(size);
    }
    require(call(m_fetched.data(), &size));
    return {m_fetched.data(), size};
}

std::string_view TicketSession::exportTicket(std::uint32_t format) {
    return fetch([&](void* buffer, std::uint32_t* size) {
        return fnExportJobTicket(m_session, buffer, size, format);
    });
}

std::string_view TicketSession::getInstructions(const char* documentName) {
    return fetch([&](void* buffer, std::uint32_t* size) {
        return fnGetPrintInstructions(m_session, buffer, size, documentName);
    });
}

PageTicket::PageTicket(const TicketSession& owner) : m_session(owner.session()) {
    require(fnCreateNewTarvoJtSettings(m_session, &m_settings));
}

PageTicket::~PageTicket() { fnReleaseTarvoJtSettings(m_session, &m_settings); }

} // namespace zent::bench
