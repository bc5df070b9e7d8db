#include "platform/UserIdentity.h"

#include "platform/CodePage.h"
#include "platform/posix/UserFolders.h"

namespace zent::platform {

std::u16string getUserLogonName(std::uint32_t& systemError) {
    int error = 0;
    const UserEntry user = findUserEntry(error);
    systemError = static_cast<std::uint32_t>(error);
    return fromAnsi(user.name);
}

UserProfile findUserProfile() {
    int error = 0;
    const std::string home = getHomeFolder(error);
    return {.status = home.empty() ? ProfileStatus::noDirectory : ProfileStatus::found,
            .directory = fromAnsi(home),
            .error = static_cast<std::uint32_t>(error)};
}

} // namespace zent::platform
