#pragma once

#include <memory>
#include <optional>

#include <QByteArray>

namespace zent::platform::qt {

/// What an application object needs.
struct Platform {
    QByteArray plugin; // with its arguments
    /// A connection to the display that is held until Qt has its own: some X servers start anew
    /// when the last client leaves, and refuse others meanwhile.
    std::shared_ptr<void> connection;
};

/// The first platform of those in QT_QPA_PLATFORM, or else of what the session's display asks for,
/// that is installed and whose display answers. Nothing if there is none. Qt itself ends the
/// process in that case.
std::optional<Platform> findPlatform();

} // namespace zent::platform::qt
