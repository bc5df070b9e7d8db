#pragma once

#include <deque>
#include <string>

#include "TicketSession.h"

namespace zent::bench {

/// Check and repair of a session's ticket, by fnApplyPrinterCapabilitiesToSettings, and a plain
/// walk over the same lists. The names are "check/TICKET/SUBJECT" and "repair/TICKET/zent"; the
/// counter "problems" is what the check finds. A ticket "-repaired" is one in which the printer
/// takes all.
class CheckBenchmark {
public:
    CheckBenchmark();

    void registerAll();

private:
    struct Ticket {
        Ticket(std::string ticketName, const std::string& xml);

        std::string name;
        TicketSession session; // holds the ticket
        std::size_t problems;
    };
    static void registerCheck(const Ticket& ticket);
    static void registerRepair(const Ticket& ticket);

    std::deque<Ticket> m_tickets;
};

} // namespace zent::bench
