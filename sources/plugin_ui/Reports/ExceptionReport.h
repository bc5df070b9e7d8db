#pragma once

#include <cstdint>
#include <exception>

#include "ocore/Text/CXString.h"
#include "platform/System.h"

namespace zent {

/// Shows a caught exception to the user as a box of resource strings with the error number, and
/// passes the details to the trace. It is to be called from the exception's handler. It raises
/// nothing of its own, but if the user answers with Cancel, it stops in a debugger or, without one,
/// rethrows the exception.
///
/// The title is a resource string (0: the owner's caption) or a ready text. `locationName` says
/// which call failed, as in "ZENT::fnOpenSession()"; it and `extraText` are for the trace.
/// `extraMessageId` is the resource string of a further paragraph, or 0.
void reportException(const std::exception& exception, std::uint32_t titleId,
                     const CXString& locationName, std::uint32_t extraMessageId,
                     const CXString& extraText);
void reportException(const std::exception& exception, const CXString& title,
                     const CXString& locationName, std::uint32_t extraMessageId,
                     const CXString& extraText);
void reportException(platform::WindowHandle owner, const std::exception& exception,
                     std::uint32_t titleId, const CXString& locationName,
                     std::uint32_t extraMessageId, const CXString& extraText);
void reportException(platform::WindowHandle owner, const std::exception& exception,
                     const CXString& title, const CXString& locationName,
                     std::uint32_t extraMessageId, const CXString& extraText);

/// Shows that something unknown went wrong, and offers to stop. True if the user wants to, and also
/// if the box could not be made; raises nothing.
bool reportUnknownException(std::uint32_t titleId, const CXString& locationName,
                            std::uint32_t extraMessageId, const CXString& extraText) noexcept;
bool reportUnknownException(const CXString& title, const CXString& locationName,
                            std::uint32_t extraMessageId, const CXString& extraText) noexcept;
bool reportUnknownException(platform::WindowHandle owner, std::uint32_t titleId,
                            const CXString& locationName, std::uint32_t extraMessageId,
                            const CXString& extraText) noexcept;
bool reportUnknownException(platform::WindowHandle owner, const CXString& title,
                            const CXString& locationName, std::uint32_t extraMessageId,
                            const CXString& extraText) noexcept;

} // namespace zent
