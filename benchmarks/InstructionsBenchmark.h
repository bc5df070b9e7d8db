#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "BlobContent.h"
#include "StreamFloor.h"
#include "TicketSession.h"
#include "XercesFloor.h"
#include "ocore/AnlXlate/AnlToStreamTranslator.h"

namespace zent::bench {

/// Printing instructions by fnGetPrintInstructions, in both forms, beside their floors: what it
/// takes to expand a state blob by zlib, to parse the document in it by Xerces-C, and to write the
/// same bytes. The names are "instructions-FORM/TICKET/SUBJECT", and
/// "translate-FORM/TICKET/SUBJECT" for the last step by itself, from a list.
///
/// The document is written by a pass of XMLFormatter, the stream by snprintf in a plain walk over
/// the list.
class InstructionsBenchmark {
public:
    InstructionsBenchmark();

    void registerAll();

private:
    struct Form {
        std::string name;
        PrinterChoice printer;
    };
    /// A ticket on a printer, and its instructions.
    struct Job {
        Job(const Form& form, const std::string& ticketName, const std::string& xml);

        std::string_view translate();
        std::string_view writeFloor();

        std::string name;
        TicketSession session; // holds the ticket
        BlobContent blob;      // the same ticket
        AttrNodeList list;     // and once more as a list
        std::unique_ptr<AnlToStreamTranslator> translator;
        ByteBuffer translated;
        std::optional<XercesWrite> document; // set for the XML form, as the next is for the stream
        std::optional<StreamFloor> stream;
        std::size_t bytes = 0;
    };
    void registerInstructions(Job& job);
    static void registerTranslation(Job& job);

    std::deque<Job> m_jobs;
    XercesParse m_xerces;
    Inflater m_inflater;
};

} // namespace zent::bench
