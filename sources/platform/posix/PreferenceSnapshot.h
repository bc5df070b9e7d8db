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

/// The state of a file, by which it can be compared with another without reading the file.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t modified = 0; // in nanoseconds since 1970, as is the next
    std::int64_t changed = 0;
    bool operator==(const FileState&) const = default;

    /// Whether the next change of the file will certainly show in its state: within one tick of a
    /// file system's clock, which can be long, two states look the same.
    bool isSettled() const;
};

/// The state of a file as the file system has it now, be it on another machine; nothing if the
/// system can't tell.
std::optional<FileState> findFileState(const std::string& path);

/// The small values of the preference database in one state of its file. To open the database costs
/// a hundred times what a look at the file costs, and it hardly ever changes; so one snapshot is
/// kept for the process. It is good for as long as the file is in that state.
class PreferenceSnapshot {
public:
    /// The size of the largest value that is kept; others stay in the database.
    static constexpr std::uint32_t largestValue = 4096;

    explicit PreferenceSnapshot(const FileState& state) : m_state(state) {}

    /// Adds a value; nothing in place of one that is too large to be kept. False when there is no
    /// room for more.
    bool add(std::u16string key, std::u16string name, std::optional<StoredPreference> value);
    /// Whether the snapshot can tell what the database holds there.
    bool knows(std::u16string_view key, std::u16string_view name) const;
    /// Null if there is no such value, as far as the snapshot knows.
    const StoredPreference* find(std::u16string_view key, std::u16string_view name) const;

    /// The snapshot that is kept, if it is of this state; else null.
    static std::shared_ptr<const PreferenceSnapshot> findKept(const FileState& state);
    /// Keeps a snapshot in place of the one before; null keeps none.
    static void keep(std::shared_ptr<const PreferenceSnapshot> snapshot);

private:
    using Place = std::pair<std::u16string, std::u16string>;

    FileState m_state;
    std::map<Place, std::optional<StoredPreference>> m_values;
    std::size_t m_size = 0;
    bool m_isComplete = true;
};

} // namespace zent::platform
