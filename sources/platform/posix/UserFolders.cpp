#include "platform/posix/UserFolders.h"

#include <cerrno>
#include <cstdlib>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace zent::platform {

namespace {

/// A folder that a variable of the environment names; empty if the path isn't absolute.
std::string getFolderVariable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value == '/' ? value : "";
}

std::string textOf(const char* text) { return text != nullptr ? text : ""; }

} // namespace

UserEntry findUserEntry(int& error) {
    constexpr std::size_t largestEntry = 1 << 20;
    passwd entry = {};
    passwd* found = nullptr;
    std::vector<char> texts(1024);
    do {
        error = getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
        if (error == ERANGE) {
            texts.resize(texts.size() * 2);
        }
    } while (error == EINTR || (error == ERANGE && texts.size() <= largestEntry));
    if (found == nullptr) {
        error = error == 0 ? ENOENT : error;
        return {};
    }
    return {textOf(entry.pw_name), textOf(entry.pw_dir)};
}

std::string getHomeFolder(int& error) {
    error = 0;
    std::string home = getFolderVariable("HOME");
    return home.empty() ? findUserEntry(error).home : home;
}

std::string getConfigFolder() {
    std::string folder = getFolderVariable("XDG_CONFIG_HOME");
    if (!folder.empty()) {
        return folder;
    }
    int error = 0;
    const std::string home = getHomeFolder(error);
    return home.empty() ? home : home + "/.config";
}

} // namespace zent::platform
