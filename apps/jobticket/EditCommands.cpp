#include <array>

#include "Assignment.h"
#include "CommonOptions.h"
#include "Session.h"
#include "TicketDocument.h"
#include "TicketEditor.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

constexpr const char* aboutPaths = R"(Addressing:
  A feature is named as "jobticket features" lists it. In a set, NAME[N] picks
  one value, from [0] on; [N] after the last appends. Covers, inserts and
  exception pages hold features of their own: cover-front.media-color,
  insert-sheet[0].insert-count, page-overrides[1].sides.
)";

constexpr const char* aboutValues = R"(Values:
  keyword     one of the feature's values; features with "or own name" take any
              text
  name, text  any text; quote it for the shell
  number      a 32-bit number; lengths and shifts in hundredths of a millimetre
              (500), or with a unit: 5mm, 0.5cm, 0.2in, 14pt
  range       3-7, or 3 for a single one
  resolution  600dpi, 600x1200dpi, 240dpcm: across the feed, along it, the unit
  size        A4, Letter, SRA3; 210x297mm, 8.5x11in, 21x29.7cm, 595x842pt; or
              21000x29700 in hundredths of a millimetre
  A feature that holds a set takes several with commas between them:
  page-ranges=1-5,8-9.
)";

constexpr std::array aboutSetting = {aboutPaths, aboutValues};

/// Reads a ticket, edits it, writes it. Nothing is written unless all went well.
template <typename Edit>
ExitStatus editTicket(const Options& options, const Edit& edit) {
    Session session;
    importDocumentFile(session, options.ticket);
    Ticket ticket = session.getTicket();
    edit(ticket);
    writeResult(options.output, session.exportTicket());
    return ExitStatus::success;
}

ExitStatus set(const Options& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.edits) {
        assignments.push_back(parseAssignment(text));
        hintAtMisspelling(assignments.back());
    }
    return editTicket(options, [&](Ticket& ticket) {
        for (const Assignment& assignment : assignments) {
            setValues(ticket, assignment.path, assignment.values);
        }
    });
}

ExitStatus unset(const Options& options) {
    std::vector<FeaturePath> paths;
    for (const std::string& text : options.edits) {
        paths.push_back(parsePath(text));
    }
    return editTicket(options, [&](Ticket& ticket) {
        if (options.removesAll) {
            ticket.removeAll();
        }
        for (const FeaturePath& path : paths) {
            removeValues(ticket, path);
        }
    });
}

constexpr Option resultOption = withHelp(
    outputOption, "File to write; without it, standard output. It may be the ticket itself");

constexpr std::array setOptions = {ticketArgument,
                                   Option{.names = "FEATURE=VALUE",
                                          .operand = Operand::assignment,
                                          .target = in<&Options::edits>,
                                          .help = "What to set, as in copies=2 sides=one-sided"},
                                   resultOption};
constexpr std::array unsetOptions = {ticketArgument,
                                     Option{.names = "FEATURE",
                                            .operand = Operand::path,
                                            .target = in<&Options::edits>,
                                            .help = "What to remove"},
                                     Option{.names = "--all",
                                            .target = in<&Options::removesAll>,
                                            .help = "Remove everything: gives an empty ticket"},
                                     resultOption};

} // namespace

const Command setCommand = {"set",
                            "Set features of a ticket",
                            setOptions,
                            set,
                            "jobticket set report.xml copies=2 page-ranges=1-5,8-9 -o out.xml\n"
                            "jobticket set report.xml 'page-overrides[0].pages=1-2'\n",
                            aboutSetting};
const Command unsetCommand = {"unset",
                              "Remove features from a ticket",
                              unsetOptions,
                              unset,
                              "jobticket unset report.xml finishings media-color -o report.xml\n",
                              std::span(aboutSetting).first(1)};

} // namespace jobticket
