#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zent::platform {

/// Types of stored values, by the numbers of the Windows registry.
namespace registryType {
constexpr std::uint32_t text = 1;   // REG_SZ: 16-bit units, little-endian, no terminator
constexpr std::uint32_t binary = 3; // REG_BINARY: any bytes
constexpr std::uint32_t number = 4; // REG_DWORD: 4 bytes, little-endian
} // namespace registryType

/// The largest size of a value in bytes, and of a name in units. These are the limits of the first
/// registries, so that what can be kept on one system can be kept on all. A key may be as long as a
/// name.
constexpr std::uint32_t largestPreference = 1024 * 1024;
constexpr std::uint32_t longestPreferenceName = 16'383;

/// A value as it is stored. It may have no bytes, which differs from there being no value.
struct StoredPreference {
    std::uint32_t type = 0;
    std::vector<std::byte> bytes;
};

enum class PreferenceStatus {
    done,
    noKey,       // reading: the key, or the store as a whole, isn't there or can't be used
    noValue,     // reading: the key holds no such value
    keyFailed,   // writing: the key couldn't be opened or created
    valueFailed, // the store failed when the value was read or written
};

/// The outcome of a request. The error is the system's number for anything but success (Windows: as
/// the registry functions return it; elsewhere: SQLite's result code, and what the system said to
/// it where it failed in that).
struct PreferenceResult {
    PreferenceStatus status = PreferenceStatus::done;
    std::uint32_t error = 0;
    std::uint32_t systemError = 0;
};

/// The user's own store of typed values, each under the path of a key (parts separated by
/// backslashes) and a name. Processes may read and write at the same time: each value is written as
/// a whole or not at all, and each reading finds what was written last.
///
/// Windows: the registry below HKEY_CURRENT_USER; keys and names compare without regard to case.
/// Elsewhere: an SQLite database in the user's configuration folder, one row a value; keys and
/// names compare exactly. It is created by the first writing, readable by its owner alone. To
/// readers a database that is damaged or out of reach is like none at all, since a service may have
/// no home that it can use; one that stays locked by another process fails.

/// Takes a value out of the store. `value` is touched only by success. One that is too large fails
/// before it is read.
PreferenceResult readPreference(std::u16string_view key, std::u16string_view name,
                                StoredPreference& value);
/// Stores a value, in place of the one of that name, and creates the key if there is none.
PreferenceResult writePreference(std::u16string_view key, std::u16string_view name,
                                 std::uint32_t type, std::span<const std::byte> bytes);

/// Says where the store of a key lies and what is wrong with it, for a result with an error.
std::u16string explainPreferenceFailure(std::u16string_view key, const PreferenceResult& result);

} // namespace zent::platform
