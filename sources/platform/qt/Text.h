#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QStringView>

/// Convert text of the port, whose lines end with CR LF, to Qt's, whose lines end with LF, and
/// back.
namespace zent::platform::qt {

inline QString toQt(std::u16string_view text) {
    const QStringView view(text.data(), static_cast<qsizetype>(text.size()));
    return view.toString().replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

inline std::u16string fromQt(QString text) {
    return text.replace(u'\n', QLatin1String("\r\n")).toStdU16String();
}

} // namespace zent::platform::qt
