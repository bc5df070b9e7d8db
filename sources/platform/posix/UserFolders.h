#pragma once

#include <string>

namespace zent::platform {

/// The entry of the user who runs the process in the user database.
struct UserEntry {
    std::string name;
    std::string home;
};
/// Its texts are empty if there is no entry; `error` is then the reason, an errno number.
UserEntry findUserEntry(int& error);

/// The user's home folder: HOME if it is an absolute path, else the one of the user database. Empty
/// if there is neither; `error` is then the reason.
std::string getHomeFolder(int& error);

/// Where programs keep the user's configuration, by the XDG Base Directory conventions:
/// XDG_CONFIG_HOME if it is an absolute path, else ".config" in the home folder. Empty if there is
/// no home.
std::string getConfigFolder();

} // namespace zent::platform
