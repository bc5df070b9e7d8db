#pragma once

#include "platform/WindowSystem.h"

namespace zent::platform::win32 {

/// The window system of Windows. It has no state of its own: that lies in the dialogs.
class Win32WindowSystem final : public WindowSystem {
public:
    Win32WindowSystem();

    std::intptr_t runModal(std::span<const std::byte> dialogTemplate,
                           const ResourceModule& resources, WindowHandle owner,
                           DialogProcedure& procedure) override;
    platform::Dialog* createModeless(std::span<const std::byte> dialogTemplate,
                                     const ResourceModule& resources, WindowHandle owner,
                                     DialogProcedure& procedure) override;
    platform::Dialog& getDialog(WindowHandle window) override;
    std::u16string getCaption(WindowHandle window) override;
    std::int32_t showMessageBox(WindowHandle owner, std::u16string_view body,
                                std::u16string_view title, std::uint32_t flags) override;
    std::optional<std::u16string> askForOpenFile(WindowHandle owner,
                                                 const FileQuestion& question) override;
    std::optional<std::u16string> askForSaveFile(WindowHandle owner,
                                                 const FileQuestion& question) override;
    bool showHelp(WindowHandle owner, std::u16string_view helpFile, std::uint32_t context) override;
};

} // namespace zent::platform::win32
