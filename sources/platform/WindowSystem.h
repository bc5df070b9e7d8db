#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Dialog.h"
#include "platform/ResourceModule.h"

namespace zent::platform {

/// The window system: opens dialogs and message boxes, asks for files, and shows help. All of it
/// belongs to the thread that uses it. Text crosses the port as plain UTF-16, since an adapter may
/// be a library of its own.
class WindowSystem {
public:
    /// The window system at hand, or null where there is none (no display, no adapter). It is
    /// looked for at the first need and then stays. An adapter makes its own application object if
    /// the host process has none, and shares it if it has. A toolkit that is bound to one thread
    /// exists for that thread alone; on others this is null.
    static WindowSystem* find();

    virtual ~WindowSystem() = default;
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;

    // A dialog without an owner stands in the middle of the screen unless its procedure moves it.

    /// Runs a dialog from template bytes (DLGTEMPLATE and its items) modally on its owner, which
    /// may be null, until its end(); gives the value that ended it, -1 if it couldn't be made, 0 if
    /// the user closed it by the window system's own means, or by the Escape key, while the
    /// procedure didn't end it (a close is sent as a command of the item 2 first). `resources` is
    /// where bitmaps and icons that the template names lie; it lives as long as the dialog.
    virtual std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                                   const ResourceModule& resources, WindowHandle owner,
                                   DialogProcedure& procedure) = 0;
    /// Shows a dialog in the same way without a loop of its own. It is destroyed by its destroy(),
    /// when the user closes it, or with its owner. Null if it couldn't be made.
    virtual Dialog* createModeless(std::span<const std::byte> dialogTemplate,
                                   const ResourceModule& resources, WindowHandle owner,
                                   DialogProcedure& procedure) = 0;

    /// The dialog that a window is; for any other window, one that isn't there.
    virtual Dialog& getDialog(WindowHandle window) = 0;
    /// The title of any window of the application, not only of a dialog.
    virtual std::u16string getCaption(WindowHandle window) = 0;

    /// Shows a message box as platform::showMessageBox does, but gives 0 if it couldn't be shown or
    /// ended without an answer.
    virtual std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body,
                                        std::u16string_view title, std::uint32_t flags) = 0;

    struct FileQuestion {
        std::u16string title;
        std::u16string filterName;    // such as "Job tickets"
        std::u16string filterPattern; // such as "*.xml"
        std::u16string extension;     // appended to a name without one, no dot
        std::u16string fileName;      // proposed
    };
    /// These give nothing if the user gave up.
    virtual std::optional<std::u16string> askForOpenFile(WindowHandle owner,
                                                         const FileQuestion& question) = 0;
    virtual std::optional<std::u16string> askForSaveFile(WindowHandle owner,
                                                         const FileQuestion& question) = 0;
    /// Opens a help file, at a context where its viewer can; false if there is no such file or
    /// nothing that shows it.
    virtual bool showHelp(WindowHandle owner, std::u16string_view helpFile,
                          std::uint32_t context) = 0;

protected:
    WindowSystem() = default;
};

} // namespace zent::platform
