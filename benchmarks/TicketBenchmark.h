#pragma once

#include <deque>
#include <string>

#include "Libxml2Peer.h"
#include "TicketSession.h"
#include "XercesFloor.h"

namespace zent::bench {

/// Import and export of whole tickets, by the library, by its floors and by libxml2. The names are
/// "import/TICKET/SUBJECT" and "export/TICKET/SUBJECT".
class TicketBenchmark {
public:
    /// Takes the path of the document type.
    explicit TicketBenchmark(const std::string& dtdPath);

    void registerAll();

private:
    struct Ticket {
        Ticket(std::string ticketName, std::string text);

        std::string name;
        std::string xml;
        TicketSession session; // holds the ticket
        XercesWrite pieces;
    };
    void registerImport(const Ticket& ticket);
    void registerExport(Ticket& ticket);
    void registerLibxml2(const Ticket& ticket);

    std::deque<Ticket> m_tickets; // the samples, then the tickets of growing size
    TicketSession m_importing;
    XercesParse m_xerces;
    Libxml2Peer m_libxml2;
};

} // namespace zent::bench
