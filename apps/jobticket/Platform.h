#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace jobticket::platform {

/// The arguments in UTF-8, without the program's name.
std::vector<std::string> getArguments(int count, char** arguments);

/// Makes the standard streams pass bytes on as they are, and a console show UTF-8.
void prepareStandardStreams();

/// Whether a person reads what is written there.
bool isTerminal(std::FILE* stream);

/// A variable of the environment.
std::optional<std::string> getVariable(const char* name);

/// The path that an argument names.
std::filesystem::path toPath(const std::string& argument);

/// Whether an argument that should be a file's path is the system's own name of a device.
bool isDeviceName(const std::string& argument);

} // namespace jobticket::platform
