#include "platform/UserIdentity.h"

#include <vector>

#include "ocore/Faults/Exceptions.h"
#include "platform/win32/SystemLibrary.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowsProcessToken.h"

#include <lm.h>
#include <userenv.h>
#include <winnetwk.h>

namespace zent::platform {

namespace {

CXString asText(std::vector<wchar_t> buffer) {
    buffer.push_back(L'\0');
    return CXString(units(buffer.data()));
}

CXString getProfileDirectory(const SystemLibrary& userenv) {
    const auto getDirectory =
        userenv.find<decltype(&GetUserProfileDirectoryW)>("GetUserProfileDirectoryW");
    if (getDirectory == nullptr) {
        Raise<UserInformationRequestException>()(
            "User::getProfileDirectoryPath(): Failed call to GetProcAddress for the "
            "GetUserProfileDirectory(). LastError of 0x%lx.\r\n",
            GetLastError());
    }
    const WindowsProcessToken token(TOKEN_QUERY);
    DWORD size = 0;
    getDirectory(token.get(), nullptr, &size);
    std::vector<wchar_t> buffer(size);
    if (getDirectory(token.get(), buffer.data(), &size) == FALSE) {
        Raise<UserInformationRequestException>()(
            "User::getProfileDirectoryPath(): Failed call to GetUserProfileDirectory() to fill in "
            "the buffer with token handle of 0x%lx. LastError of 0x%lx.\r\n",
            reinterpret_cast<std::uintptr_t>(token.get()), GetLastError());
    }
    return asText(std::move(buffer));
}

CXString getWindowsDirectory() {
    const UINT size = GetWindowsDirectoryW(nullptr, 0);
    std::vector<wchar_t> buffer(size);
    const UINT length = GetWindowsDirectoryW(buffer.data(), size);
    if (length == 0 || length > size) {
        Raise<UserInformationRequestException>()(
            "User::GetUserProfileDirectory(): Failed call to GetWindowsDirectory() to fill in the "
            "buffer. LastError of 0x%lx.\r\n",
            GetLastError());
    }
    return asText(std::move(buffer));
}

using NetWkstaUserGetInfoFunction = decltype(&NetWkstaUserGetInfo);

CXString getWorkstationUser(const SystemLibrary& netapi, NetWkstaUserGetInfoFunction getInfo,
                            std::uint32_t& systemError) {
    CXString name;
    BYTE* result = nullptr;
    const NET_API_STATUS status = getInfo(nullptr, 0, &result);
    if (status == NERR_Success && result != nullptr) {
        // The function's own allocation, aligned for what it holds.
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

CXString getNetworkUser(std::uint32_t& systemError) {
    wchar_t name[256] = {};
    DWORD capacity = 256;
    const DWORD status = WNetGetUserW(nullptr, name, &capacity);
    if (status != NO_ERROR) {
        systemError = status;
        return {};
    }
    return CXString(units(name));
}

} // namespace

CXString getUserLogonName(std::uint32_t& systemError) {
    systemError = 0;
    const SystemLibrary netapi(L"netapi32.dll");
    const auto getInfo = netapi.find<NetWkstaUserGetInfoFunction>("NetWkstaUserGetInfo");
    return getInfo != nullptr ? getWorkstationUser(netapi, getInfo, systemError)
                              : getNetworkUser(systemError);
}

CXString getUserProfileDirectory(std::uint32_t& systemError) {
    systemError = 0;
    const SystemLibrary userenv(L"userenv.dll");
    if (userenv.isLoaded()) {
        return getProfileDirectory(userenv);
    }
    systemError = GetLastError();
    return getWindowsDirectory();
}

} // namespace zent::platform
