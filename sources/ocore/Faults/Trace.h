#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "ocore/Text/CXString.h"

namespace zent::trace {

/// The parts of the system whose tracing a settings file can switch, by the key that stands for
/// each.
extern const std::array<std::u16string_view, 29> moduleNames;

/// Where trace text goes. As delivered there is no such place, and all output is dropped unseen.
using Output = void (*)(std::u16string_view text) noexcept;
/// Null drops all output.
void setOutput(Output output) noexcept;
bool isOutputEnabled() noexcept;

void output(std::u16string_view text) noexcept;
/// Hands a text to the output, with the level that a raise site gave, or the mask that an exception
/// was built with.
void output(std::uint32_t level, std::u16string_view text) noexcept;
/// The place in the source that the next text is about.
void location(std::u16string_view file, std::int32_t line) noexcept;
/// The system's text for an error number; the mask says who asks.
void systemErrorText(std::uint32_t error, std::uint32_t mask) noexcept;

/// The number under `key` in the section "debug" of the settings file "trvdbg.ini".
std::int32_t getTraceSetting(const CXString& key, std::int32_t fallback);

/// The two hooks that the library entry calls, in this order, before the library goes.
void endOutput() noexcept;
void endSettings() noexcept;

} // namespace zent::trace
