#include "platform/qt/Application.h"

#include <clocale>
#include <string>

#include <QApplication>
#include <QThread>

#include "platform/KeepForever.h"
#include "platform/qt/Display.h"

namespace zent::platform::qt {

namespace {

/// Keeps the host's locale, since an application object sets the process's locale to the user's.
/// Only the classes of characters become the user's, since input methods need them.
class LocaleKeeper {
public:
    LocaleKeeper() : m_locale(std::setlocale(LC_ALL, nullptr)) {}
    ~LocaleKeeper() {
        std::setlocale(LC_ALL, m_locale.c_str());
        std::setlocale(LC_CTYPE, "");
    }
    LocaleKeeper(const LocaleKeeper&) = delete;
    LocaleKeeper& operator=(const LocaleKeeper&) = delete;

private:
    std::string m_locale;
};

/// An application object of this library's own. It is never destroyed: the end of the process may
/// come on any thread, and after Qt's own static objects are gone.
bool makeOwnApplication() {
    const auto platform = findPlatform();
    if (!platform) {
        return false;
    }
    // Qt keeps references to its arguments.
    static QByteArray& name = keepForever<QByteArray>(platform->plugin);
    static char program[] = "zent27";
    static char option[] = "-platform";
    static char* arguments[] = {program, option, name.data(), nullptr};
    static int count = 3;
    const LocaleKeeper keeper;
    [[maybe_unused]] static const auto* const application = new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return true;
}

} // namespace

bool hasApplication() {
    // One thread makes it, while others that ask at the same time wait.
    [[maybe_unused]] static const bool isMade =
        QCoreApplication::instance() != nullptr || makeOwnApplication();
    const auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    return application != nullptr && application->thread() == QThread::currentThread();
}

} // namespace zent::platform::qt
