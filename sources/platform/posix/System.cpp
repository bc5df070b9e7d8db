#include "platform/System.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>

#include <cxxabi.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Surrogates.h"
#include "platform/UnseenMessage.h"
#include "platform/WindowSystem.h"

namespace zent::platform {

const bool unknownExceptionsMayLeave = false;

namespace {

bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

/// The number that a text begins with; 0 if it begins with none.
std::int32_t leadingNumber(std::string_view text) {
    std::int32_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body, std::u16string_view title,
                            std::uint32_t flags) {
    WindowSystem* const windowSystem = WindowSystem::find();
    const std::int32_t answer =
        windowSystem != nullptr ? windowSystem->showMessageBox(owner, body, title, flags) : 0;
    return answer != 0 ? answer : printUnseenMessage(body, title, flags);
}

std::u16string getWindowCaption(WindowHandle window) {
    constexpr std::size_t longestCaption = 255;
    WindowSystem* const windowSystem = window != nullptr ? WindowSystem::find() : nullptr;
    return std::u16string(
        windowSystem != nullptr ? cutText(windowSystem->getCaption(window), longestCaption) : u"");
}

std::u16string getSystemErrorText(std::uint32_t error) {
    const char* text = strerrordesc_np(static_cast<int>(error));
    return text != nullptr ? fromAnsi(text) : std::u16string();
}

std::uint32_t getLastError() { return static_cast<std::uint32_t>(errno); }

std::uint32_t getCurrentThreadId() {
    thread_local const auto id = static_cast<std::uint32_t>(syscall(SYS_gettid));
    return id;
}

std::int32_t getProfileInteger(std::u16string_view section, std::u16string_view key,
                               std::int32_t fallback, std::u16string_view file) {
    const std::u16string folder = isBareName(file) ? getDriverDirectory() : std::u16string();
    const std::u16string path = folder + std::u16string(file);
    if (isBareName(path)) { // the library's own folder isn't known
        return fallback;
    }
    std::ifstream lines(toAnsi(path));
    const std::string heading = '[' + toAnsi(section) + ']';
    const std::string name = toAnsi(key);
    bool isInSection = false;
    for (std::string line; std::getline(lines, line);) {
        const std::string_view text = trimmed(line);
        const std::size_t equals = text.find('=');
        if (text.starts_with('[')) {
            isInSection = equalsIgnoringCase(text, heading);
        } else if (isInSection && equals != std::string_view::npos &&
                   equalsIgnoringCase(trimmed(text.substr(0, equals)), name)) {
            const std::string_view value = trimmed(text.substr(equals + 1));
            return value.empty() ? fallback : leadingNumber(value);
        }
    }
    return fallback;
}

std::string getTypeName(const std::type_info& type) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return name != nullptr ? name.get() : type.name();
}

bool isDebuggerPresent() {
    constexpr std::string_view field = "TracerPid:";
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(field)) {
            return leadingNumber(trimmed(std::string_view(line).substr(field.size()))) != 0;
        }
    }
    return false;
}

void breakIntoDebugger() { std::raise(SIGTRAP); }

} // namespace zent::platform
