// The only source of the program that knows one system from another.

#include "Platform.h"

#include <cstdlib>

#ifdef _WIN32
#include <memory>
#include <string_view>

#include <fcntl.h>
#include <io.h>

#include <windows.h>

#include <shellapi.h>

#include "Text.h"
#include "platform/win32/DeviceName.h"
#else
#include <unistd.h>
#endif

namespace jobticket::platform {

#ifdef _WIN32

// The arguments of main() are in the ANSI code page, so that those of the UTF-16 command line are
// taken.
std::vector<std::string> getArguments(int /*count*/, char** /*arguments*/) {
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> arguments(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> result;
    for (int index = 1; index < count; ++index) {
        result.push_back(toUtf8(fromZent(arguments.get()[index])));
    }
    return result;
}

void prepareStandardStreams() {
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    SetConsoleOutputCP(CP_UTF8);
}

bool isTerminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

std::optional<std::string> getVariable(const char* name) {
    const std::wstring wide(name, name + std::char_traits<char>::length(name));
    const wchar_t* const value = _wgetenv(wide.c_str());
    return value == nullptr ? std::nullopt : std::optional(toUtf8(fromZent(value)));
}

bool isDeviceName(const std::string& argument) {
    return zent::platform::isDeviceName(fromUtf8(argument));
}

#else

std::vector<std::string> getArguments(int count, char** arguments) {
    // A program may be started without even its name.
    return count < 1 ? std::vector<std::string>()
                     : std::vector<std::string>(arguments + 1, arguments + count);
}

void prepareStandardStreams() {}

bool isTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

std::optional<std::string> getVariable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

// A device has a path like any file here, and who names it means it.
bool isDeviceName(const std::string& /*argument*/) { return false; }

#endif

std::filesystem::path toPath(const std::string& argument) {
    return std::u8string(argument.begin(), argument.end());
}

} // namespace jobticket::platform
