#pragma once

#include <optional>
#include <string>

#include <QFileDialog>

#include "platform/WindowSystem.h"

namespace zent::platform::qt {

/// These do what WindowSystem::askForOpenFile and askForSaveFile promise.
std::optional<std::u16string> askForFile(QWidget* owner, const WindowSystem::FileQuestion& question,
                                         QFileDialog::AcceptMode mode);

} // namespace zent::platform::qt
