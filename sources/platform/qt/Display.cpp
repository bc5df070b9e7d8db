#include "platform/qt/Display.h"

#include <cstring>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QList>
#include <QPluginLoader>
#include <QStringList>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace zent::platform::qt {

namespace {

/// Connects to an X display; null if it doesn't answer.
std::shared_ptr<void> connectToXServer() {
    std::shared_ptr<xcb_connection_t> connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0 ? connection : nullptr;
}

bool doesSocketAnswer(const QByteArray& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0) {
        return false;
    }
    const bool isConnected =
        connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(descriptor);
    return isConnected;
}

bool doesWaylandAnswer() {
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    return !name.isEmpty() &&
           doesSocketAnswer(name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name);
}

/// Whether a plugin can be loaded, with all that it needs.
bool isPluginInstalled(const QString& name) {
    QStringList folders;
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM_PLUGIN_PATH")) {
        folders << qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
    }
    for (const QString& folder : QCoreApplication::libraryPaths()) {
        folders << folder + QStringLiteral("/platforms");
    }
    const QStringList pattern(QStringLiteral("libq%1*.so").arg(name));
    for (const QString& folder : std::as_const(folders)) {
        for (const QFileInfo& file : QDir(folder).entryInfoList(pattern, QDir::Files)) {
            if (QPluginLoader(file.absoluteFilePath()).load()) {
                return true;
            }
        }
    }
    return false;
}

std::optional<Platform> openPlatform(const QByteArray& plugin) {
    const QByteArray name = plugin.split(':').first(); // its arguments follow
    if (name.isEmpty() || !isPluginInstalled(QString::fromLocal8Bit(name)) ||
        (name.startsWith("wayland") && !doesWaylandAnswer())) {
        return std::nullopt;
    }
    Platform platform{plugin, name == "xcb" ? connectToXServer() : nullptr};
    return name == "xcb" && platform.connection == nullptr ? std::nullopt
                                                           : std::optional(std::move(platform));
}

QList<QByteArray> wishedPlatforms() {
    const QByteArray wished = qgetenv("QT_QPA_PLATFORM");
    if (!wished.isEmpty()) {
        return wished.split(';');
    }
    // On Wayland windows can't be placed where a dialog wants them; through its X server they can.
    QList<QByteArray> platforms;
    if (!qEnvironmentVariableIsEmpty("DISPLAY")) {
        platforms << "xcb";
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        platforms << "wayland";
    }
    return platforms;
}

} // namespace

std::optional<Platform> findPlatform() {
    for (const QByteArray& plugin : wishedPlatforms()) {
        if (auto platform = openPlatform(plugin)) {
            return platform;
        }
    }
    return std::nullopt;
}

} // namespace zent::platform::qt
