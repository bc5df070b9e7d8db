#include "platform/qt/Caption.h"

#include <QStringList>
#include <QWidget>

namespace zent::platform::qt {

namespace {

const QLatin1String mark("[*]");
const QLatin1String markItself("[*][*]");

} // namespace

QString toTitle(QString caption) { return caption.replace(mark, markItself); }

QString captionOf(const QWidget& window) {
    QStringList parts = window.windowTitle().split(markItself);
    parts.replaceInStrings(mark, window.isWindowModified() ? QStringLiteral("*") : QString());
    return parts.join(mark);
}

} // namespace zent::platform::qt
