// The questions and answers besides dialogs: message boxes, file questions and help.

#include <array>

#include "platform/win32/Dialog.h"
#include "platform/win32/WideText.h"
#include "platform/win32/Win32WindowSystem.h"

#include <cderr.h>
#include <commdlg.h>

namespace zent::platform::win32 {

namespace {

using FileDialog = BOOL(WINAPI*)(OPENFILENAMEW*);

/// A file dialog's question in the system's form, which points into this object.
class FileDialogForm {
public:
    FileDialogForm(const FileDialogForm&) = delete;
    FileDialogForm& operator=(const FileDialogForm&) = delete;
    FileDialogForm(WindowHandle owner, const WindowSystem::FileQuestion& question, DWORD flags)
        : m_question(question),
          m_filter(question.filterName + u'\0' + question.filterPattern + u'\0') {
        m_form.lStructSize = sizeof(m_form);
        m_form.hwndOwner = static_cast<HWND>(owner);
        m_form.lpstrFilter = wide(m_filter.c_str()); // ends with two terminators
        m_form.lpstrFile = wide(m_path.data());
        m_form.nMaxFile = static_cast<DWORD>(m_path.size());
        m_form.lpstrTitle = orNull(m_question.title);
        m_form.lpstrDefExt = orNull(m_question.extension);
        m_form.Flags =
            flags | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
        m_question.fileName.copy(m_path.data(), m_path.size() - 1);
    }

    std::optional<std::u16string> ask(FileDialog dialog) {
        bool isAnswered = dialog(&m_form) != FALSE;
        if (!isAnswered && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
            m_path.fill(u'\0'); // the proposed name can't be one of a file
            isAnswered = dialog(&m_form) != FALSE;
        }
        return isAnswered ? std::optional<std::u16string>(m_path.data()) : std::nullopt;
    }

private:
    static const wchar_t* orNull(const std::u16string& text) {
        return text.empty() ? nullptr : wide(text.c_str());
    }

    WindowSystem::FileQuestion m_question;
    std::u16string m_filter;
    std::array<char16_t, 4096> m_path = {};
    OPENFILENAMEW m_form = {};
};

} // namespace

std::int32_t Win32WindowSystem::showMessageBox(WindowHandle owner, std::u16string_view body,
                                               std::u16string_view title, std::uint32_t flags) {
    const int answer = MessageBoxW(static_cast<HWND>(owner), terminated(body).c_str(),
                                   terminated(title).c_str(), flags);
    // A box that has OK alone answers so when it is closed, too; Wine says otherwise.
    return (flags & MB_TYPEMASK) == MB_OK && answer == IDCANCEL ? IDOK : answer;
}

std::optional<std::u16string> Win32WindowSystem::askForOpenFile(WindowHandle owner,
                                                                const FileQuestion& question) {
    return FileDialogForm(owner, question, OFN_FILEMUSTEXIST).ask(&GetOpenFileNameW);
}

std::optional<std::u16string> Win32WindowSystem::askForSaveFile(WindowHandle owner,
                                                                const FileQuestion& question) {
    return FileDialogForm(owner, question, OFN_OVERWRITEPROMPT).ask(&GetSaveFileNameW);
}

bool Win32WindowSystem::showHelp(WindowHandle owner, std::u16string_view helpFile,
                                 std::uint32_t context) {
    const std::u16string path(helpFile);
    if (GetFileAttributesW(wide(path.c_str())) == INVALID_FILE_ATTRIBUTES) {
        return false; // the system would ask the user where it is
    }
    const auto dialog = Dialog::of(owner);
    return dialog != nullptr ? dialog->showHelp(path, context)
                             : WinHelpW(static_cast<HWND>(owner), wide(path.c_str()), HELP_CONTEXT,
                                        context) != FALSE;
}

} // namespace zent::platform::win32
