#pragma once

#include <optional>

#include <QByteArray>

namespace zent::platform::qt {

/// The platform plugin, with its arguments, that an application object can be made with: the first
/// of those in QT_QPA_PLATFORM, or else of what the session's display asks for, that is installed
/// and whose display answers. Nothing if there is none. Qt itself ends the process in that case.
std::optional<QByteArray> findPlatform();

} // namespace zent::platform::qt
