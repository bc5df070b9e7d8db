#include "platform/posix/PreferenceSnapshot.h"

#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/KeepForever.h"
#include "platform/Lock.h"

namespace zent::platform {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
/// How long a file must be left alone until its state is settled: longer than the longest tick of a
/// file system's clock, which is two seconds.
constexpr std::int64_t settlingTime = 3 * nanosecondsPerSecond;
constexpr std::size_t maximumSize = std::size_t{64} * 1024;

struct Slot {
    Lock lock;
    std::shared_ptr<const PreferenceSnapshot> snapshot;
};

Slot& slot() {
    static Slot& kept = keepForever<Slot>();
    return kept;
}

template <typename Time>
std::int64_t nanoseconds(const Time& time) {
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

} // namespace

bool FileState::isSettled() const {
    timespec now = {};
    return clock_gettime(CLOCK_REALTIME, &now) == 0 && nanoseconds(now) - modified > settlingTime;
}

std::optional<FileState> findFileState(const std::string& path) {
    struct statx status = {};
    if (statx(AT_FDCWD, path.c_str(), AT_STATX_FORCE_SYNC, STATX_BASIC_STATS, &status) != 0) {
        return std::nullopt;
    }
    constexpr unsigned deviceBits = 32;
    return FileState{.device =
                         std::uint64_t{status.stx_dev_major} << deviceBits | status.stx_dev_minor,
                     .number = status.stx_ino,
                     .size = status.stx_size,
                     .modified = nanoseconds(status.stx_mtime),
                     .changed = nanoseconds(status.stx_ctime)};
}

bool PreferenceSnapshot::add(std::u16string key, std::u16string name,
                             std::optional<StoredPreference> value) {
    m_size += (key.size() + name.size()) * sizeof(char16_t) + (value ? value->bytes.size() : 0);
    if (m_size > maximumSize) {
        m_isComplete = false;
        return false;
    }
    m_values.emplace(Place(std::move(key), std::move(name)), std::move(value));
    return true;
}

bool PreferenceSnapshot::knows(std::u16string_view key, std::u16string_view name) const {
    const auto found = m_values.find(Place(key, name));
    return found == m_values.end() ? m_isComplete : found->second.has_value();
}

const StoredPreference* PreferenceSnapshot::find(std::u16string_view key,
                                                 std::u16string_view name) const {
    const auto found = m_values.find(Place(key, name));
    return found == m_values.end() || !found->second ? nullptr : &*found->second;
}

std::shared_ptr<const PreferenceSnapshot> PreferenceSnapshot::findKept(const FileState& state) {
    Slot& kept = slot();
    const LockHold hold(kept.lock);
    return kept.snapshot && kept.snapshot->m_state == state ? kept.snapshot : nullptr;
}

void PreferenceSnapshot::keep(std::shared_ptr<const PreferenceSnapshot> snapshot) {
    Slot& kept = slot();
    const LockHold hold(kept.lock);
    kept.snapshot.swap(snapshot);
}

} // namespace zent::platform
