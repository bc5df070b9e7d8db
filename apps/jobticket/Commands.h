#pragma once

#include <functional>

#include "ExitStatus.h"

namespace CLI {
class App;
}

namespace jobticket {

/// What a command line asks for; run when all of it has been read.
using Action = std::function<ExitStatus()>;

/// Each adds a command to the program. When it is the one that is given, it stores what to do.
void addNewCommand(CLI::App& program, Action& action);
void addShowCommand(CLI::App& program, Action& action);
void addSetCommand(CLI::App& program, Action& action);
void addUnsetCommand(CLI::App& program, Action& action);
void addDiffCommand(CLI::App& program, Action& action);
void addCheckCommand(CLI::App& program, Action& action);
void addRetargetCommand(CLI::App& program, Action& action);
void addInstructionsCommand(CLI::App& program, Action& action);
void addNotesCommand(CLI::App& program, Action& action);
void addStateCommand(CLI::App& program, Action& action);
void addFeaturesCommand(CLI::App& program, Action& action);
void addModelsCommand(CLI::App& program, Action& action);
void addCapabilitiesCommand(CLI::App& program, Action& action);
void addStockCommand(CLI::App& program, Action& action);
void addPreferencesCommand(CLI::App& program, Action& action);

} // namespace jobticket
