#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "zent27.h"

namespace zent::bench {

/// Throws std::runtime_error unless the result is ZENT_OK: a call that fails is no measurement.
void require(ZentResult result);

/// The printer of a session. All its numbers are those of fnOpenSession.
struct PrinterChoice {
    std::uint32_t model = 1;
    std::uint32_t pdl = 1;
    std::uint32_t form = ZENT_INSTRUCTIONS_XML;
};

/// Opens a silent session, and closes it.
void openAndClose();

/// A silent session and its ticket, empty at first, through the exported calls alone, as an
/// application has them.
class TicketSession {
public:
    explicit TicketSession(const PrinterChoice& printer = {});
    TicketSession(const TicketSession&) = delete;
    TicketSession& operator=(const TicketSession&) = delete;
    ~TicketSession();

    ZentSessionType session() const { return m_session; }
    TarvoJtSettingsType settings() const { return m_settings; }

    /// Replaces the ticket.
    void importTicket(std::string_view bytes, std::uint32_t format = ZENT_FORMAT_XML) const;
    /// Checks the ticket against the printer, by a ZentApplyMode. Whether it found problems.
    bool applyCapabilities(std::uint32_t mode) const;
    /// These ask for the size, then fetch. The bytes are valid until the next call of either.
    std::string_view exportTicket(std::uint32_t format = ZENT_FORMAT_XML);
    std::string_view getInstructions(const char* documentName = nullptr);

private:
    template <typename Call>
    std::string_view fetch(Call call);

    ZentSessionType m_session;
    TarvoJtSettingsType m_settings = nullptr;
    std::vector<char> m_fetched;
};

/// A free-standing ticket of a session's application.
class PageTicket {
public:
    explicit PageTicket(const TicketSession& owner);
    PageTicket(const PageTicket&) = delete;
    PageTicket& operator=(const PageTicket&) = delete;
    ~PageTicket();

    TarvoJtSettingsType settings() const { return m_settings; }

private:
    ZentSessionType m_session;
    TarvoJtSettingsType m_settings = nullptr;
};

} // namespace zent::bench
