#include <array>

#include "CommonOptions.h"
#include "PrinterOptions.h"
#include "Session.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

ExitStatus makeTicket(const Options& options) {
    Session session(choosePrinter(options.printer));
    writeResult(options.output, session.exportTicket());
    return ExitStatus::success;
}

constexpr std::array options = {modelOption, languageOption, formOption, outputOption};

} // namespace

const Command newCommand = {"new", "Make a ticket that holds a printer's defaults", options,
                            makeTicket,
                            "jobticket new --model \"Chromaset 900\" --pdl ps -o report.xml\n"};

} // namespace jobticket
