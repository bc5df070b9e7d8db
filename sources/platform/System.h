#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <typeinfo>

#include "platform/WindowHandle.h"

namespace zent::platform {

/// Shows a titled text with an icon and buttons and returns the button pressed (1 OK, 2 Cancel).
/// `flags` are those of the Windows message box: 16, 32, 48, 64 icons, 8192 task modal, 1 OK and
/// Cancel. Where nobody can see it, or this thread can't show it, the text goes to the standard
/// error stream and a choice counts as refused: Cancel, or No; a box with OK alone counts as OK.
std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body, std::u16string_view title,
                            std::uint32_t flags);

/// The caption of a window, at most 255 units; empty for null.
std::u16string getWindowCaption(WindowHandle window);

/// The system's text for an error number; empty if it has none. Leaves the last error as it was.
std::u16string getSystemErrorText(std::uint32_t error);
std::uint32_t getLastError();

std::uint32_t getCurrentThreadId();

/// An integer from a section of a profile file (key=value lines under [section]). Windows looks
/// where GetPrivateProfileIntW does; elsewhere a bare file name lies in the library's own folder.
std::int32_t getProfileInteger(std::u16string_view section, std::u16string_view key,
                               std::int32_t fallback, std::u16string_view file);

/// A type's name as written in the source, with its namespace.
std::string getTypeName(const std::type_info& type);

/// Whether a debugger watches the process, and a stop in it.
bool isDebuggerPresent();
void breakIntoDebugger();

/// Whether an exception of an unknown kind may travel on into the application: true on Windows,
/// where it can be a processor fault that the application's own handlers want to see.
extern const bool unknownExceptionsMayLeave;

} // namespace zent::platform
