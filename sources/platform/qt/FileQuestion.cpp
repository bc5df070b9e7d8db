#include "platform/qt/FileQuestion.h"

#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

/// What file dialogs take as a filter, such as "Job tickets (*.xml)".
QString filterOf(const WindowSystem::FileQuestion& question) {
    return question.filterPattern.empty()
               ? QString()
               : QStringLiteral("%1 (%2)").arg(toQt(question.filterName),
                                               toQt(question.filterPattern));
}

} // namespace

std::optional<std::u16string> askForFile(QWidget* owner, const WindowSystem::FileQuestion& question,
                                         QFileDialog::AcceptMode mode) {
    QFileDialog dialog(owner, toQt(question.title), QString(), filterOf(question));
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(toQt(question.extension));
    if (!question.fileName.empty()) {
        dialog.selectFile(toQt(question.fileName));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.selectedFiles().value(0).toStdU16String();
}

} // namespace zent::platform::qt
