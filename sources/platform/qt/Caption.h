#pragma once

#include <QString>

class QWidget;

/// In the titles of Qt's windows "[*]" stands for the mark of a changed document, and twice that
/// for itself.
namespace zent::platform::qt {

/// The title that shows a text as it is written.
QString toTitle(QString caption);
/// A window's title as the user sees it.
QString captionOf(const QWidget& window);

} // namespace zent::platform::qt
