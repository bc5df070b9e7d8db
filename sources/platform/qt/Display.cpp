#include "platform/qt/Display.h"

#include <algorithm>
#include <cstring>
#include <memory>

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

bool doesXServerAnswer() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
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

bool isReady(const QByteArray& platform) {
    const QByteArray name = platform.split(':').first(); // its arguments follow
    if (name.isEmpty() || !isPluginInstalled(QString::fromLocal8Bit(name))) {
        return false;
    }
    if (name == "xcb") {
        return doesXServerAnswer();
    }
    return !name.startsWith("wayland") || doesWaylandAnswer();
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

std::optional<QByteArray> findPlatform() {
    const QList<QByteArray> platforms = wishedPlatforms();
    const auto found = std::find_if(platforms.begin(), platforms.end(), isReady);
    return found == platforms.end() ? std::nullopt : std::optional(*found);
}

} // namespace zent::platform::qt
