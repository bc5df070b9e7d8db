#include "platform/UserIdentity.h"

#include <vector>

#include "platform/win32/SystemLibrary.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowsProcessToken.h"

#include <lm.h>
#include <userenv.h>
#include <winnetwk.h>

namespace zent::platform {

namespace {

std::u16string asText(std::vector<wchar_t> buffer) {
    buffer.push_back(L'\0');
    return units(buffer.data());
}

UserProfile failed(ProfileStatus status) { return {.status = status, .error = GetLastError()}; }

UserProfile findProfile(const SystemLibrary& userenv) {
    const auto getDirectory =
        userenv.find<decltype(&GetUserProfileDirectoryW)>("GetUserProfileDirectoryW");
    if (getDirectory == nullptr) {
        return failed(ProfileStatus::noFunction);
    }
    constexpr DWORD access = TOKEN_QUERY;
    const WindowsProcessToken token(access);
    if (!token.isOpen()) {
        UserProfile profile = failed(ProfileStatus::tokenRefused);
        profile.access = access;
        return profile;
    }
    DWORD size = 0;
    getDirectory(token.get(), nullptr, &size);
    std::vector<wchar_t> buffer(size);
    if (getDirectory(token.get(), buffer.data(), &size) == FALSE) {
        UserProfile profile = failed(ProfileStatus::directoryRefused);
        profile.token = reinterpret_cast<std::uintptr_t>(token.get());
        return profile;
    }
    return {.directory = asText(std::move(buffer))};
}

UserProfile findWindowsDirectory() {
    const UINT size = GetWindowsDirectoryW(nullptr, 0);
    std::vector<wchar_t> buffer(size);
    const UINT length = GetWindowsDirectoryW(buffer.data(), size);
    return length == 0 || length > size ? failed(ProfileStatus::noDirectory)
                                        : UserProfile{.directory = asText(std::move(buffer))};
}

using NetWkstaUserGetInfoFunction = decltype(&NetWkstaUserGetInfo);

std::u16string getWorkstationUser(const SystemLibrary& netapi, NetWkstaUserGetInfoFunction getInfo,
                                  std::uint32_t& systemError) {
    std::u16string name;
    BYTE* result = nullptr;
    const NET_API_STATUS status = getInfo(nullptr, 0, &result);
    if (status == NERR_Success && result != nullptr) {
        // The function has allocated the bytes itself, aligned for the structure that they hold.
        const void* information = result;
        name = units(static_cast<const WKSTA_USER_INFO_0*>(information)->wkui0_username);
    } else {
        systemError = status;
    }
    const auto freeBuffer = netapi.find<decltype(&NetApiBufferFree)>("NetApiBufferFree");
    if (result != nullptr && freeBuffer != nullptr) {
        freeBuffer(result);
    }
    return name;
}

std::u16string getNetworkUser(std::uint32_t& systemError) {
    wchar_t name[256] = {};
    DWORD capacity = 256;
    const DWORD status = WNetGetUserW(nullptr, name, &capacity);
    if (status != NO_ERROR) {
        systemError = status;
        return {};
    }
    return units(name);
}

} // namespace

std::u16string getUserLogonName(std::uint32_t& systemError) {
    systemError = 0;
    const SystemLibrary netapi(L"netapi32.dll");
    const auto getInfo = netapi.find<NetWkstaUserGetInfoFunction>("NetWkstaUserGetInfo");
    return getInfo != nullptr ? getWorkstationUser(netapi, getInfo, systemError)
                              : getNetworkUser(systemError);
}

UserProfile findUserProfile() {
    const SystemLibrary userenv(L"userenv.dll");
    if (userenv.isLoaded()) {
        return findProfile(userenv);
    }
    const DWORD notLoaded = GetLastError();
    UserProfile profile = findWindowsDirectory();
    if (profile.status == ProfileStatus::found) {
        profile.error = notLoaded;
    }
    return profile;
}

} // namespace zent::platform
