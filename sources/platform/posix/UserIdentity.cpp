#include "platform/UserIdentity.h"

#include "ocore/Faults/Exceptions.h"
#include "platform/posix/UserFolders.h"

namespace zent::platform {

namespace {

CXString asText(const std::string& narrow) { return CXString(narrow.data(), narrow.size()); }

} // namespace

CXString getUserLogonName(std::uint32_t& systemError) {
    int error = 0;
    const UserEntry user = findUserEntry(error);
    systemError = static_cast<std::uint32_t>(error);
    return asText(user.name);
}

CXString getUserProfileDirectory(std::uint32_t& systemError) {
    int error = 0;
    const std::string home = getHomeFolder(error);
    systemError = static_cast<std::uint32_t>(error);
    if (home.empty()) {
        // There is no further fallback here either; support staff know this text.
        Raise<UserInformationRequestException>()(
            "User::GetUserProfileDirectory(): Failed call to GetWindowsDirectory() to fill in the "
            "buffer. LastError of 0x%lx.\r\n",
            systemError);
    }
    return asText(home);
}

} // namespace zent::platform
