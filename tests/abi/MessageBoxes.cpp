#include "abi/MessageBoxes.h"

#include <algorithm>
#include <utility>

#ifdef _WIN32
#include <atomic>
#include <mutex>
#include <thread>

#include <windows.h>
// A macro of that name for the function.
#undef MessageBox
#else
#include <cstdio>

#include <unistd.h>
#endif

namespace zent::test {

#ifdef _WIN32

namespace {

std::string textOfWindow(HWND window) {
    wchar_t buffer[2048] = {};
    GetWindowTextW(window, buffer, 2048);
    std::string text;
    for (const wchar_t* unit = buffer; *unit != 0; ++unit) {
        if (*unit != L'\r') {
            text += static_cast<char>(*unit);
        }
    }
    return text;
}

/// The texts in a box or dialog, but for its buttons. The icon of a box, which has none, is a
/// static control as well.
BOOL CALLBACK collectText(HWND child, LPARAM result) {
    wchar_t className[16] = {};
    GetClassNameW(child, className, 16);
    if (std::wstring_view(className) == L"Static" || std::wstring_view(className) == L"Edit") {
        *reinterpret_cast<std::string*>(result) += textOfWindow(child);
    }
    return TRUE;
}

BOOL CALLBACK findBox(HWND window, LPARAM result) {
    wchar_t className[16] = {};
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    GetClassNameW(window, className, 16);
    const bool isBox = process == GetCurrentProcessId() &&
                       std::wstring_view(className) == L"#32770" && IsWindowVisible(window);
    if (isBox) {
        *reinterpret_cast<HWND*>(result) = window;
    }
    return !isBox;
}

} // namespace

/// A box blocks the thread that shows it, so another one looks for it and answers.
class MessageBoxes::Watcher {
public:
    explicit Watcher(bool refuses)
        : m_answer(refuses ? IDCANCEL : IDOK), m_thread([this] { run(); }) {}
    ~Watcher() {
        m_ends = true;
        m_thread.join();
    }

    std::vector<MessageBox> take() {
        const std::lock_guard hold(m_guard);
        return std::exchange(m_boxes, {});
    }

private:
    void run() {
        while (!m_ends) {
            HWND box = nullptr;
            EnumWindows(findBox, reinterpret_cast<LPARAM>(&box));
            if (box != nullptr) {
                answer(box);
            }
            Sleep(5);
        }
    }

    void answer(HWND box) {
        MessageBox shown{textOfWindow(box), {}};
        EnumChildWindows(box, collectText, reinterpret_cast<LPARAM>(&shown.text));
        {
            const std::lock_guard hold(m_guard);
            m_boxes.push_back(std::move(shown));
        }
        PostMessageW(box, WM_COMMAND, m_answer, 0);
        for (int i = 0; i < 1000 && IsWindow(box); ++i) {
            Sleep(5);
        }
    }

    const WPARAM m_answer;
    std::atomic<bool> m_ends = false;
    std::mutex m_guard;
    std::vector<MessageBox> m_boxes;
    std::thread m_thread; // last, since it uses the others
};

#else

namespace {

std::string nextLine(std::string& text) {
    const std::size_t end = text.find('\n');
    std::string line = text.substr(0, end);
    text.erase(0, end == std::string::npos ? end : end + 1);
    return line;
}

} // namespace

/// Takes the place of the standard error stream.
class MessageBoxes::Watcher {
public:
    explicit Watcher(bool /*refuses*/) : m_file(std::tmpfile()), m_stderr(dup(STDERR_FILENO)) {
        dup2(fileno(m_file), STDERR_FILENO);
    }
    ~Watcher() {
        dup2(m_stderr, STDERR_FILENO);
        close(m_stderr);
        std::fclose(m_file);
    }

    std::vector<MessageBox> take() {
        std::string text = takeText();
        std::vector<MessageBox> boxes;
        const std::string rule(72, '-');
        while (!text.empty()) {
            const std::size_t end = text.find('\n' + rule + '\n', rule.size());
            if (!text.starts_with(rule) || end == std::string::npos) {
                boxes.push_back({{}, std::move(text)});
                break;
            }
            std::string box = text.substr(rule.size() + 1, end - rule.size() - 1);
            text.erase(0, end + rule.size() + 2);
            std::string title = nextLine(box);
            title.erase(std::min(title.rfind(" ("), title.size())); // the kind of box
            nextLine(box);
            boxes.push_back({std::move(title), std::move(box)});
        }
        return boxes;
    }

private:
    std::string takeText() {
        std::fflush(stderr);
        std::string text;
        std::rewind(m_file);
        for (int c = std::fgetc(m_file); c != EOF; c = std::fgetc(m_file)) {
            text += static_cast<char>(c);
        }
        std::rewind(m_file);
        if (ftruncate(fileno(m_file), 0) != 0) {
            text += "can't truncate";
        }
        return text;
    }

    std::FILE* m_file;
    int m_stderr;
};

#endif

MessageBoxes::MessageBoxes(bool refuses) : m_watcher(std::make_unique<Watcher>(refuses)) {}

MessageBoxes::~MessageBoxes() = default;

std::vector<MessageBox> MessageBoxes::take() { return m_watcher->take(); }

} // namespace zent::test
