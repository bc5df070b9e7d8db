#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/PreferenceStore.h"

namespace zent::platform {

/// One state of a file, told from another without reading it.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t modified = 0; // nanoseconds since 1970, as is the next
    std::int64_t changed = 0;
    bool operator==(const FileState&) const = default;

    /// Whether the next writing will surely make it another one: file systems have clocks with long
    /// ticks, within which two states can look the same.
    bool isSettled() const;
};

/// The state of a file as the file system has it now, be it on another machine; nothing if that
/// can't be told.
std::optional<FileState> findFileState(const std::string& path);

/// All values of the preference database in one state of its file. To open the database costs a
/// hundred times what a look at the file costs, and it hardly ever changes; so one snapshot is kept
/// for the process. It is good for as long as the file is in that state.
class PreferenceSnapshot {
public:
    explicit PreferenceSnapshot(const FileState& state) : m_state(state) {}

    /// False if there are too many values to be kept.
    bool add(std::u16string key, std::u16string name, StoredPreference value);
    /// Null if there is no such value.
    const StoredPreference* find(std::u16string_view key, std::u16string_view name) const;

    /// The snapshot that is kept, if it is of this state; else null.
    static std::shared_ptr<const PreferenceSnapshot> findKept(const FileState& state);
    /// Keeps this snapshot, or with null none at all.
    static void keep(std::shared_ptr<const PreferenceSnapshot> snapshot);

private:
    using Place = std::pair<std::u16string, std::u16string>;

    FileState m_state;
    std::map<Place, StoredPreference> m_values;
    std::size_t m_size = 0;
};

} // namespace zent::platform
