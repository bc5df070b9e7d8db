// The only source of the program that knows one system from another.

#include "Platform.h"

#ifdef _WIN32
#include <cstdio>
#include <memory>
#include <string_view>

#include <fcntl.h>
#include <io.h>

#include <windows.h>

#include <shellapi.h>

#include "Text.h"
#endif

namespace jobticket::platform {

#ifdef _WIN32

// What main() gets is in the ANSI code page; the command line itself is UTF-16.
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

#else

std::vector<std::string> getArguments(int count, char** arguments) {
    // A program may be started without even its name.
    return count < 1 ? std::vector<std::string>()
                     : std::vector<std::string>(arguments + 1, arguments + count);
}

void prepareStandardStreams() {}

#endif

std::filesystem::path toPath(const std::string& argument) {
    return std::u8string(argument.begin(), argument.end());
}

} // namespace jobticket::platform
