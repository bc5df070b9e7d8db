#pragma once

#include <deque>
#include <string>

#include "BlobContent.h"
#include "CupsTicket.h"
#include "TicketSession.h"
#include "XercesFloor.h"
#include "Zlib.h"

namespace zent::bench {

/// Import and export of whole tickets as state blobs: by the library; by its floors, which are zlib
/// and a pass of Xerces-C on the same bytes; and by libcups and zlib, as deflated IPP messages of
/// the same attributes. The names are "import-blob/TICKET/SUBJECT" and
/// "export-blob/TICKET/SUBJECT"; the counter "bytes" is the size of the outside form.
class BlobBenchmark {
public:
    BlobBenchmark();

    void registerAll();

private:
    struct Blob {
        Blob(std::string ticketName, const std::string& xml);

        std::string name;
        TicketSession session; // holds the ticket
        std::string state;     // the blob
        BlobContent content;
        XercesWrite document;
        CupsTicket cups;
        std::string message; // the IPP message, deflated
        std::size_t messageSize;
    };
    void registerImport(Blob& blob);
    void registerExport(Blob& blob);
    std::string_view writeFloor(Blob& blob);

    std::deque<Blob> m_blobs;
    TicketSession m_importing;
    XercesParse m_xerces;
    Inflater m_inflater;
    Deflater m_deflater;
    std::string m_content;
};

} // namespace zent::bench
