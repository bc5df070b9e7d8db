#pragma once

#include <QKeyEvent>
#include <QString>

namespace zent::platform::qt {

/// The text that a key types; empty for a key that does something else. It is what Qt's own items
/// for text would insert.
QString typedBy(const QKeyEvent& event);

} // namespace zent::platform::qt
