#include "platform/qt/QtWindowSystem.h"

#include <algorithm>

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "platform/qt/Caption.h"
#include "platform/qt/Dialog.h"
#include "platform/qt/FileQuestion.h"
#include "platform/qt/MessageBox.h"
#include "platform/qt/Text.h"

namespace zent::platform::qt {

namespace {

/// The widget of a handle, which may be the application's; null if there is none.
QWidget* findWidget(WindowHandle handle) {
    const QWidgetList widgets = QApplication::allWidgets();
    const auto found = std::find(widgets.begin(), widgets.end(), handle);
    return found == widgets.end() ? nullptr : (*found)->window();
}

} // namespace

std::intptr_t QtWindowSystem::runModal(std::span<const std::byte> dialogTemplate,
                                       const ResourceModule& resources, WindowHandle owner,
                                       DialogProcedure& procedure) {
    constexpr std::intptr_t notMade = -1;
    Dialog* const dialog = Dialog::create(dialogTemplate, resources, findWidget(owner), procedure);
    return dialog != nullptr ? dialog->runModal() : notMade;
}

platform::Dialog* QtWindowSystem::createModeless(std::span<const std::byte> dialogTemplate,
                                                 const ResourceModule& resources,
                                                 WindowHandle owner, DialogProcedure& procedure) {
    Dialog* const dialog = Dialog::create(dialogTemplate, resources, findWidget(owner), procedure);
    if (dialog == nullptr) {
        return nullptr;
    }
    const WindowHandle handle = dialog->getHandle();
    dialog->startModeless();
    return Dialog::find(handle);
}

platform::Dialog& QtWindowSystem::getDialog(WindowHandle window) {
    Dialog* const dialog = Dialog::find(window);
    return dialog != nullptr ? *dialog : none<platform::Dialog>();
}

std::u16string QtWindowSystem::getCaption(WindowHandle window) {
    const QWidget* const widget = findWidget(window);
    return widget != nullptr ? fromQt(captionOf(*widget)) : std::u16string();
}

std::int32_t QtWindowSystem::showMessageBox(WindowHandle owner, std::u16string_view body,
                                            std::u16string_view title, std::uint32_t flags) {
    return qt::showMessageBox(findWidget(owner), toQt(body), toQt(title), flags);
}

std::optional<std::u16string> QtWindowSystem::askForOpenFile(WindowHandle owner,
                                                             const FileQuestion& question) {
    return askForFile(findWidget(owner), question, QFileDialog::AcceptOpen);
}

std::optional<std::u16string> QtWindowSystem::askForSaveFile(WindowHandle owner,
                                                             const FileQuestion& question) {
    return askForFile(findWidget(owner), question, QFileDialog::AcceptSave);
}

/// Opens a help file with the desktop's own viewer of such files.
bool QtWindowSystem::showHelp(WindowHandle /*owner*/, std::u16string_view helpFile,
                              std::uint32_t /*context*/) {
    const QFileInfo file(toQt(helpFile));
    return file.isFile() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

} // namespace zent::platform::qt
