#pragma once

#include <cstdint>

#include <QString>

class QWidget;

namespace zent::platform::qt {

/// Does what WindowSystem::showMessageBox promises.
std::int32_t showMessageBox(QWidget* owner, const QString& body, const QString& title,
                            std::uint32_t flags);

} // namespace zent::platform::qt
