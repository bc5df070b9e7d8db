#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace zent::platform {

// A wchar_t is 16 bits wide on this system, and holds what a char16_t holds: all casts between the
// two are here.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* wide(const char16_t* text) { return reinterpret_cast<const wchar_t*>(text); }
inline wchar_t* wide(char16_t* text) { return reinterpret_cast<wchar_t*>(text); }
inline const char16_t* units(const wchar_t* text) {
    return reinterpret_cast<const char16_t*>(text);
}

/// A copy with a terminator, which views lack and the system's functions ask for:
/// `terminated(path).c_str()`.
inline std::wstring terminated(std::u16string_view text) {
    return {wide(text.data()), text.size()};
}

} // namespace zent::platform
