#include "platform/PreferenceStore.h"

#include <utility>

#include "platform/System.h"
#include "platform/win32/WideText.h"

namespace zent::platform {

namespace {

/// An open key below the user's own, closed with the object.
class Key {
public:
    Key() = default;
    ~Key() {
        if (m_key != nullptr) {
            RegCloseKey(m_key);
        }
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    LSTATUS open(std::u16string_view path) {
        return RegOpenKeyExW(HKEY_CURRENT_USER, terminated(path).c_str(), 0, KEY_READ, &m_key);
    }
    LSTATUS create(std::u16string_view path) {
        return RegCreateKeyExW(HKEY_CURRENT_USER, terminated(path).c_str(), 0, nullptr,
                               REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
    }
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

BYTE* bytesOf(std::vector<std::byte>& buffer) { return reinterpret_cast<BYTE*>(buffer.data()); }

PreferenceResult resultOf(PreferenceStatus status, LSTATUS error) {
    return {status, static_cast<std::uint32_t>(error)};
}

} // namespace

PreferenceResult readPreference(std::u16string_view path, std::u16string_view name,
                                StoredPreference& value) {
    const std::wstring wideName = terminated(name);
    Key key;
    LSTATUS error = key.open(path);
    if (error != ERROR_SUCCESS) {
        return resultOf(PreferenceStatus::noKey, error);
    }
    StoredPreference found;
    DWORD type = 0;
    DWORD size = 0;
    error = RegQueryValueExW(key.get(), wideName.c_str(), nullptr, &type, nullptr, &size);
    const bool exists = error == ERROR_SUCCESS;
    while (exists && size > 0) {
        if (size > largestPreference) {
            return resultOf(PreferenceStatus::valueFailed, ERROR_FILE_TOO_LARGE);
        }
        found.bytes.resize(size);
        error = RegQueryValueExW(key.get(), wideName.c_str(), nullptr, &type, bytesOf(found.bytes),
                                 &size);
        // Another process may have changed the value, or taken it away, meanwhile.
        if (error != ERROR_MORE_DATA) {
            found.bytes.resize(error == ERROR_SUCCESS ? size : 0);
            break;
        }
    }
    if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) {
        return resultOf(PreferenceStatus::valueFailed, error);
    }
    if (!exists) {
        return resultOf(PreferenceStatus::noValue, error);
    }
    found.type = type;
    value = std::move(found);
    return {};
}

PreferenceResult writePreference(std::u16string_view path, std::u16string_view name,
                                 std::uint32_t type, std::span<const std::byte> bytes) {
    if (bytes.size() > largestPreference) {
        return resultOf(PreferenceStatus::valueFailed, ERROR_FILE_TOO_LARGE);
    }
    Key key;
    LSTATUS error = key.create(path);
    if (error != ERROR_SUCCESS) {
        return resultOf(PreferenceStatus::keyFailed, error);
    }
    // The system stores a zero unit that follows a text as a part of it.
    std::vector<std::byte> guarded(bytes.begin(), bytes.end());
    guarded.resize(bytes.size() + sizeof(wchar_t), std::byte{1});
    error = RegSetValueExW(key.get(), terminated(name).c_str(), 0, type, bytesOf(guarded),
                           static_cast<DWORD>(bytes.size()));
    return error == ERROR_SUCCESS ? PreferenceResult{}
                                  : resultOf(PreferenceStatus::valueFailed, error);
}

std::u16string explainPreferenceFailure(std::u16string_view key, const PreferenceResult& result) {
    return u"HKEY_CURRENT_USER\\" + std::u16string(key) + u": " + getSystemErrorText(result.error);
}

} // namespace zent::platform
