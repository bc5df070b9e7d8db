#include <algorithm>
#include <array>
#include <iostream>
#include <map>
#include <sstream>

#include "Assignment.h"
#include "Batch.h"
#include "Command.h"
#include "Listing.h"
#include "Outline.h"
#include "Printers.h"
#include "Session.h"
#include "Text.h"
#include "TicketFile.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "platform/LockedFile.h"

namespace jobticket {

namespace {

std::string listForPeople(const std::vector<OutlineLine>& outline) {
    if (outline.empty()) {
        return "The ticket is empty.\n";
    }
    std::vector<Row> rows;
    for (const OutlineLine& line : outline) {
        const std::string indent(std::size_t(2) * line.depth, ' ');
        rows.push_back({indent + line.label, joinTexts(line.values)});
    }
    return layOut(rows);
}

std::string listForPrograms(const std::vector<OutlineLine>& outline) {
    std::string text;
    for (const OutlineLine& line : outline) {
        if (!line.isHeading) {
            text += line.path + "=" + toPrintable(joinValues(line.values)) + "\n";
        }
    }
    return text;
}

/// Lists a ticket. Each of several tickets has its name above it, or in a JSON document of its own.
std::string list(const std::vector<OutlineLine>& outline, const std::string& ticket,
                 const Options& options) {
    const bool hasName = options.tickets.size() > 1;
    if (options.listsJson) {
        return startJson(ticket, hasName).add("features", toJson(outline)).toText();
    }
    return (hasName ? nameForMessages(ticket) + ":\n" : "") +
           (options.listsRaw ? listForPrograms(outline) : listForPeople(outline)) +
           (hasName ? "\n" : "");
}

ExitStatus show(const Options& options) {
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(ticket));
        writeStandardOutput(list(outline, ticket, options));
        return ExitStatus::success;
    });
}

/// The lines of a listing that a path stands for: of a feature its own, of a collection those of
/// its members.
std::vector<const OutlineLine*> findLines(const std::vector<OutlineLine>& outline,
                                          const std::string& path) {
    const bool isFeature = !namesAttribute(path);
    const std::optional<Feature> feature =
        isFeature ? std::optional(parsePath(path).back().feature) : std::nullopt;
    const std::size_t dot = path.rfind('.') + 1; // 0 without one
    std::vector<const OutlineLine*> lines;
    for (const OutlineLine& line : outline) {
        const std::string name = line.path.substr(line.path.rfind('.') + 1);
        const bool isMember =
            feature && feature->getKind() == ValueKind::collection && !feature->isPageLevel() &&
            Feature::exists(name) && Feature::named(name).isMemberOf(*feature) &&
            line.path.size() == dot + name.size() && line.path.starts_with(path.substr(0, dot));
        if (!line.isHeading &&
            (line.path == path || isMember || line.path.starts_with(path + '.') ||
             line.path.starts_with(path + '['))) {
            lines.push_back(&line);
        }
    }
    return lines;
}

ExitStatus get(const Options& options) {
    const std::vector<OutlineLine> outline = makeOutline(readDocumentFile(options.ticket));
    const std::vector<const OutlineLine*> lines = findLines(outline, options.pattern);
    if (lines.empty()) {
        checkIsKnown(options.pattern);
    }
    const bool isAlone = lines.size() == 1 && lines.front()->path == options.pattern;
    std::string text;
    for (const OutlineLine* line : lines) {
        text += (isAlone ? "" : line->path + "=") + toPrintable(joinValues(line->values)) + "\n";
    }
    writeStandardOutput(text);
    return lines.empty() ? ExitStatus::differences : ExitStatus::success;
}

constexpr std::array showOptions = {
    ticketArguments,
    Option{.names = "--raw",
           .target = in<&Options::listsRaw>,
           .help = "List names and values as \"jobticket set\" takes them, one a line",
           .excludes = "--json"},
    jsonOption, quietOption};
constexpr std::array getOptions = {ticketArgument,
                                   Option{.names = "FEATURE",
                                          .operand = Operand::path,
                                          .target = in<&Options::pattern>,
                                          .help = "A feature, or a collection of some",
                                          .isRequired = true}};

} // namespace

const Command showCommand = {"show", "List what tickets say", showOptions, show,
                             "jobticket show report.xml\n"
                             "jobticket show --raw report.xml\n"};

const Command getCommand = {"get", "Print the value of a feature; exit status 1 if it isn't set",
                            getOptions, get,
                            "jobticket get report.xml copies\n"
                            "jobticket get report.xml media-col\n"};

namespace {

struct Sides {
    const OutlineLine* first = nullptr;
    const OutlineLine* second = nullptr;
};

struct Difference {
    std::string path;
    Sides sides; // of which one may be null
};

std::string valueOf(const OutlineLine* line) {
    return line == nullptr ? "(not set)" : joinValues(line->values);
}

/// The features that the two tickets don't agree on, in the order of the first ticket
/// and then of the second. The order of features says nothing about the job, so it isn't compared.
std::vector<Difference> compare(const std::vector<OutlineLine>& first,
                                const std::vector<OutlineLine>& second) {
    std::map<std::string, Sides> byPath;
    std::vector<std::string> order;
    const auto note = [&](const OutlineLine& line, const OutlineLine* Sides::*side) {
        if (!line.isHeading) {
            if (!byPath.contains(line.path)) {
                order.push_back(line.path);
            }
            byPath[line.path].*side = &line;
        }
    };
    std::for_each(first.begin(), first.end(), [&](const auto& line) { note(line, &Sides::first); });
    std::for_each(second.begin(), second.end(),
                  [&](const auto& line) { note(line, &Sides::second); });

    std::vector<Difference> differences;
    for (const std::string& path : order) {
        const Sides& sides = byPath[path];
        if (sides.first == nullptr || sides.second == nullptr ||
            joinValues(sides.first->values) != joinValues(sides.second->values)) {
            differences.push_back({path, sides});
        }
    }
    return differences;
}

std::string listForPeople(const std::vector<Difference>& differences) {
    std::vector<Row> rows;
    rows.reserve(differences.size());
    for (const auto& [path, sides] : differences) {
        rows.push_back({path, valueOf(sides.first) + " -> " + valueOf(sides.second)});
    }
    return layOut(rows);
}

std::string listAsJson(const std::vector<Difference>& differences) {
    Json list = Json::array();
    for (const auto& [path, sides] : differences) {
        Json json = Json::object().add("path", path);
        if (sides.first != nullptr) {
            json.add("first", toJson(sides.first->values));
        }
        if (sides.second != nullptr) {
            json.add("second", toJson(sides.second->values));
        }
        list.add(json);
    }
    return Json::object().add("differences", list).toText();
}

ExitStatus diff(const Options& options) {
    if (options.ticket == standardStream && options.otherTicket == standardStream) {
        throw ProgramError(ExitStatus::usage, "only one of the two tickets can be standard input");
    }
    const std::vector<OutlineLine> first = makeOutline(readDocumentFile(options.ticket));
    const std::vector<OutlineLine> second = makeOutline(readDocumentFile(options.otherTicket));
    const std::vector<Difference> differences = compare(first, second);
    if (!options.isQuiet) {
        writeStandardOutput(options.listsJson ? listAsJson(differences)
                                              : listForPeople(differences));
    }
    return differences.empty() ? ExitStatus::success : ExitStatus::differences;
}

constexpr std::array diffOptions = {ticketArgument,
                                    Option{.names = "OTHER",
                                           .operand = Operand::file,
                                           .target = in<&Options::otherTicket>,
                                           .help = "The ticket to compare it with",
                                           .isRequired = true},
                                    jsonOption,
                                    withHelp(quietOption, "No list: the exit status says all")};

} // namespace

const Command diffCommand = {
    "diff", "Compare two tickets, feature by feature; exit status 1 if they differ", diffOptions,
    diff, "jobticket unset report.xml finishings | jobticket diff report.xml -\n"};

namespace {

ExitStatus makeTicket(const Options& options) {
    Session session(choosePrinter(options.printer));
    writeResult(options.output, session.exportTicket());
    return ExitStatus::success;
}

constexpr std::array newOptions = {modelOption, languageOption, formOption, outputOption};

} // namespace

const Command newCommand = {"new", "Make a ticket that holds a printer's defaults", newOptions,
                            makeTicket,
                            "jobticket new --model \"Chromaset 900\" --pdl ps -o report.xml\n"};

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

/// The lines of a file of assignments; empty ones and those that begin with # say nothing.
std::vector<std::string> readAssignments(const std::string& file) {
    std::vector<std::string> lines;
    std::istringstream text(readFile(file));
    for (std::string line; std::getline(text, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (!line.empty() && line.front() != '#') {
            lines.push_back(line);
        }
    }
    return lines;
}

/// Moves the assignments from the tickets to the edits. The tickets come first: from the first
/// argument that looks like an assignment on, all are assignments.
void moveAssignments(Options& options) {
    std::vector<std::string>& tickets = options.tickets;
    const auto first =
        std::find_if(tickets.begin(), tickets.end(), [](const std::string& argument) {
            return argument.starts_with('@') || looksLikeAssignment(argument);
        });
    for (auto argument = first; argument != tickets.end(); ++argument) {
        if (argument->starts_with('@')) {
            const std::vector<std::string> lines = readAssignments(argument->substr(1));
            options.edits.insert(options.edits.end(), lines.begin(), lines.end());
        } else {
            options.edits.push_back(*argument);
        }
    }
    tickets.erase(first, tickets.end());
    if (tickets.empty()) {
        throw ProgramError(ExitStatus::usage, "TICKET is required before what is to be set");
    }
}

/// Refuses the name of a feature among the tickets: it lacks its value.
void checkAreFiles(const std::vector<std::string>& tickets) {
    for (const std::string& ticket : tickets) {
        if (Feature::exists(ticket) &&
            zent::platform::getFileKind(fromUtf8(ticket)) == zent::platform::FileKind::missing) {
            throw ProgramError(ExitStatus::usage,
                               inQuotes(ticket) + " isn't of the form FEATURE=VALUE");
        }
    }
}

bool isGeneralShift(const Assignment& assignment) {
    const auto number = assignment.path.back().feature.getNumber();
    return number == zent::feature::xImageShift || number == zent::feature::yImageShift;
}

/// Sets all values in the session's ticket. A general image shift becomes those of the printed
/// sides at once, as an import makes it, so that what is set after it prevails.
void setAll(Session& session, const std::vector<Assignment>& assignments) {
    for (const Assignment& assignment : assignments) {
        Ticket ticket = session.getTicket();
        setValues(ticket, assignment.path, assignment.values);
        if (isGeneralShift(assignment)) {
            session.importTicket(session.exportTicket(), "the ticket");
        }
    }
}

std::vector<Assignment> parseAll(const Options& options) {
    std::vector<Assignment> assignments;
    for (const std::string& text : options.edits) {
        for (Assignment& assignment : parseAssignments(text)) {
            std::cerr << (options.isQuiet ? "" : hintAtMisspelling(assignment));
            assignments.push_back(std::move(assignment));
        }
    }
    return assignments;
}

/// Nothing is written of a ticket unless all went well.
ExitStatus set(const Options& given) {
    Options options = given;
    moveAssignments(options);
    checkAreFiles(options.tickets);
    const std::vector<Assignment> assignments = parseAll(options);
    const std::vector<std::string> results =
        options.writesInPlace ? options.tickets
                              : chooseResultFiles(options.tickets, options.output);
    std::size_t next = 0;
    return runOnEach(options.tickets, options.isQuiet, [&](const std::string& ticket) {
        const std::string& result = results[next++];
        Session session;
        importDocumentFile(session, ticket);
        setAll(session, assignments);
        writeFile(result, session.exportTicket());
        return ExitStatus::success;
    });
}

/// Features are removed by the exported calls. Attributes that only the document type knows aren't
/// known to the calls, and are taken out of the document.
ExitStatus unset(const Options& options) {
    std::vector<FeaturePath> features;
    std::vector<std::string> attributes;
    for (const std::string& text : options.edits) {
        if (namesAttribute(text)) {
            attributes.push_back(text);
        } else {
            features.push_back(parsePath(text));
        }
    }
    Session session;
    importDocumentFile(session, options.ticket);
    Ticket ticket = session.getTicket();
    if (options.removesAll) {
        ticket.removeAll();
    }
    for (const FeaturePath& path : features) {
        removeValues(ticket, path);
    }
    const std::string document = session.exportTicket();
    writeFile(options.writesInPlace ? options.ticket
                                    : options.output.value_or(std::string(standardStream)),
              attributes.empty() ? document : withoutAttributes(document, attributes));
    return ExitStatus::success;
}

constexpr Option inPlaceOption = {.names = "-i,--in-place",
                                  .target = in<&Options::writesInPlace>,
                                  .help = "Write each ticket back to its own file",
                                  .excludes = "--output"};

constexpr std::array setOptions = {
    ticketArguments,
    Option{.names = "FEATURE=VALUE",
           .operand = Operand::assignment,
           .target = in<&Options::edits>,
           .help = "What to set, as in copies=2 sides=one-sided; stock=NAME sets the medium to a "
                   "stock of your library; @FILE reads lines of these"},
    withHelp(outputOption, "File to write; without it, standard output. With several tickets it is "
                           "the folder that the results go to"),
    inPlaceOption, quietOption};
constexpr std::array unsetOptions = {
    ticketArgument,
    Option{.names = "FEATURE",
           .operand = Operand::path,
           .target = in<&Options::edits>,
           .help = "What to remove: a feature, or any attribute that \"show\" lists"},
    Option{.names = "--all",
           .target = in<&Options::removesAll>,
           .help = "Remove everything: gives an empty ticket"},
    outputOption, inPlaceOption};

} // namespace

const Command setCommand = {"set",
                            "Set features of tickets",
                            setOptions,
                            set,
                            "jobticket set report.xml copies=2 page-ranges=1-5,8-9 -o out.xml\n"
                            "jobticket set -i *.xml media-size=A4 finishings=staple-top-left\n"
                            "jobticket set report.xml 'page-overrides[0].pages=1-2' -i\n",
                            aboutSetting};
const Command unsetCommand = {"unset",
                              "Remove features from a ticket",
                              unsetOptions,
                              unset,
                              "jobticket unset report.xml finishings media-color -i\n",
                              std::span(aboutSetting).first(1)};

namespace {

ExitStatus editNotes(const Options& options) {
    Session session = openSession(options, choosePrinter(options.printer));
    importDocumentFile(session, options.ticket);
    const std::string before = session.exportTicket();
    session.showJobNotes();
    const std::string after = session.exportTicket();
    const std::string target = options.output.value_or(options.ticket);
    // The file isn't written if the user has given up.
    const bool isSameFile = target == options.ticket && target != standardStream;
    if (!isSameFile || after != before) {
        writeFile(target, after);
    }
    return ExitStatus::success;
}

constexpr std::array notesOptions = {
    ticketArgument,
    modelOption,
    languageOption,
    preferenceSetOption,
    printerPreferencesOption,
    withHelp(outputOption,
             "File to write, or - for standard output; without it, the ticket itself")};

} // namespace

const Command notesCommand = {
    "notes", "Edit a ticket's job notes in a dialog: name, account, people, messages", notesOptions,
    editNotes, "jobticket notes report.xml --model 43\n"};

} // namespace jobticket
