#include "platform/System.h"

#include <cstdlib>
#include <memory>

#include <cxxabi.h>

#include "platform/Surrogates.h"
#include "platform/UnseenMessage.h"
#include "platform/WindowSystem.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowText.h"

namespace zent::platform {

const bool unknownExceptionsMayLeave = true;

std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body, std::u16string_view title,
                            std::uint32_t flags) {
    WindowSystem* const system = WindowSystem::find();
    const std::int32_t answer =
        system != nullptr ? system->showMessageBox(owner, body, title, flags) : 0;
    return answer != 0 ? answer : printUnseenMessage(body, title, flags);
}

std::u16string getWindowCaption(WindowHandle window) {
    constexpr std::size_t longestCaption = 255;
    return std::u16string(window != nullptr
                              ? cutText(getWindowText(static_cast<HWND>(window)), longestCaption)
                              : u"");
}

std::u16string getSystemErrorText(std::uint32_t error) {
    const DWORD lastError = GetLastError();
    wchar_t* text = nullptr;
    // With the first flag, the system allocates the text, and puts its address in the place of a
    // buffer.
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::u16string result;
    if (length != 0) {
        result.assign(units(text), length);
        result.resize(result.find_last_not_of(u" \t\n\v\f\r") + 1);
        LocalFree(text);
    }
    SetLastError(lastError);
    return result;
}

std::uint32_t getLastError() { return GetLastError(); }

std::uint32_t getCurrentThreadId() { return GetCurrentThreadId(); }

std::int32_t getProfileInteger(std::u16string_view section, std::u16string_view key,
                               std::int32_t fallback, std::u16string_view file) {
    return static_cast<std::int32_t>(GetPrivateProfileIntW(
        terminated(section).c_str(), terminated(key).c_str(), fallback, terminated(file).c_str()));
}

std::string getTypeName(const std::type_info& type) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return name != nullptr ? name.get() : type.name();
}

bool isDebuggerPresent() { return IsDebuggerPresent() != FALSE; }

void breakIntoDebugger() { DebugBreak(); }

} // namespace zent::platform
