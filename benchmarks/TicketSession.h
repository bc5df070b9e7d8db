#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "zent27.h"

namespace zent::bench {

/// Throws std::runtime_error unless the result is ZENT_OK: a call that fails is no measurement.
void require(ZentResult result);

/// Opens a silent session, and closes it.
void openAndClose();

/// A silent session and its ticket, empty at first, through the exported calls alone, as an
/// application has them.
class TicketSession {
public:
    TicketSession();
    TicketSession(const TicketSession&) = delete;
    TicketSession& operator=(const TicketSession&) = delete;
    ~TicketSession();

    ZentSessionType session() const { return m_session; }
    TarvoJtSettingsType settings() const { return m_settings; }

    /// Replaces the ticket.
    void importTicket(std::string_view bytes, std::uint32_t format = ZENT_FORMAT_XML) const;
    /// Asks for the size, then fetches. The bytes are valid until the next export.
    std::string_view exportTicket(std::uint32_t format = ZENT_FORMAT_XML);

private:
    ZentSessionType m_session;
    TarvoJtSettingsType m_settings = nullptr;
    std::vector<char> m_exported;
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
