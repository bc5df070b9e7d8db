// jobticket: makes, edits, compares and checks job tickets on the command line.

#include <algorithm>
#include <iostream>
#include <span>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Platform.h"
#include "Spelling.h"
#include "Text.h"
#include "ZENT_API/ModuleDirectory.h"
#include "ocore/TarvoException.h"

namespace jobticket {

namespace {

constexpr const char* aboutStatus = R"(Exit status:
  0  success
  1  diff: the tickets differ; check, retarget: the printer can't do all of the ticket
  2  wrong use of the command
  3  a file can't be read
  4  what was read is no valid ticket, state blob or media library
  5  a feature, printer, stock or value that isn't known
  6  the result can't be written
  7  any other failure of the library
)";

std::vector<std::string> namesOf(const CLI::App& program) {
    std::vector<std::string> names;
    for (const CLI::App* command : program.get_subcommands(nullptr)) {
        names.push_back(command->get_name());
    }
    return names;
}

/// CLI11 would only say that a command is missing. `before` is the command that has commands of its
/// own, with a blank behind it.
void checkCommand(const CLI::App& program, std::span<const std::string> arguments,
                  const std::string& before = {}) {
    const std::vector<std::string> names = namesOf(program);
    if (names.empty() || arguments.empty() || arguments.front().starts_with('-')) {
        return;
    }
    const std::string& name = arguments.front();
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        const std::string nearest = findNearest(name, names);
        throw ProgramError(ExitStatus::usage,
                           "there is no command " + inQuotes(before + name) + "; " +
                               (nearest.empty()
                                    ? "\"jobticket " + before + "--help\" lists all"
                                    : "did you mean " + inQuotes(before + nearest) + "?"));
    }
    checkCommand(*program.get_subcommand(name), arguments.subspan(1), before + name + " ");
}

/// Reads the command line. What CLI11 has to say (help, wrong use) it prints itself; then there is
/// nothing to do.
ExitStatus parse(CLI::App& program, std::vector<std::string> arguments) {
    try {
        std::reverse(arguments.begin(), arguments.end()); // the order in which they are taken
        program.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? ExitStatus::success : ExitStatus::usage;
    }
    return ExitStatus::success;
}

ExitStatus run(const std::vector<std::string>& arguments) {
    CLI::App program("Makes, edits, compares and checks job tickets for production printers.",
                     "jobticket");
    program.set_version_flag("--version", "jobticket " ZENT_VERSION);
    program.require_subcommand(1);
    // The commands take this over: on every system "/a" is a file.
    program.allow_windows_style_options(false);
    program.footer(std::string("\"jobticket COMMAND --help\" tells more about a command.\n\n") +
                   aboutStatus);
    Action action;
    addNewCommand(program, action);
    addShowCommand(program, action);
    addSetCommand(program, action);
    addUnsetCommand(program, action);
    addDiffCommand(program, action);
    addCheckCommand(program, action);
    addRetargetCommand(program, action);
    addInstructionsCommand(program, action);
    addNotesCommand(program, action);
    addStateCommand(program, action);
    addFeaturesCommand(program, action);
    addModelsCommand(program, action);
    addCapabilitiesCommand(program, action);
    addStockCommand(program, action);
    addPreferencesCommand(program, action);
    checkCommand(program, arguments);
    const ExitStatus status = parse(program, arguments);
    return action ? action() : status;
}

int fail(ExitStatus status, const std::string& message) {
    std::cerr << "jobticket: " << message << '\n';
    return static_cast<int>(status);
}

} // namespace

} // namespace jobticket

int main(int count, char** arguments) {
    using jobticket::ExitStatus;
    try {
        jobticket::platform::prepareStandardStreams();
        // Display names and the document type are found beside the program, with no session yet.
        zent::announceModuleDirectory();
        return static_cast<int>(
            jobticket::run(jobticket::platform::getArguments(count, arguments)));
    } catch (const jobticket::ProgramError& error) {
        return jobticket::fail(error.getStatus(), error.what());
    } catch (const zent::TarvoException& exception) {
        return jobticket::fail(ExitStatus::libraryFailure,
                               jobticket::toPrintable(exception.getMessage()));
    } catch (const std::exception& exception) {
        return jobticket::fail(ExitStatus::libraryFailure, exception.what());
    }
}
