#pragma once

#include <cstdint>
#include <string_view>

namespace zent::platform {

/// Writes a message box to the standard error stream, where there is nobody to show it to, and
/// gives the answer: where there is a choice, the one that refuses (Cancel, No, Abort), else OK.
std::int32_t printUnseenMessage(std::u16string_view body, std::u16string_view title,
                                std::uint32_t flags);

} // namespace zent::platform
