#pragma once

#ifdef _WIN32
#include <windows.h>
// A macro of that name for the function.
#undef MessageBox
#endif

#include "support/Testing.h"

namespace zent::test {

struct MessageBox {
    std::string title;
    std::string text; // lines end in "\n"
};

/// Watches the message boxes of the process, as long as it lives. Nobody can see its windows, so
/// they are texts on the standard error stream, where nobody can agree to anything; whatever else
/// is written there counts as a box without a title.
class MessageBoxes {
public:
    MessageBoxes() { testing::internal::CaptureStderr(); }
    ~MessageBoxes() { testing::internal::GetCapturedStderr(); }
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    /// What was shown since the last call.
    std::vector<MessageBox> take() {
        std::string rule(72, '-');
        rule += '\n';
        std::string text = testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        std::erase(text, '\r'); // as Windows ends its lines
        std::vector<MessageBox> boxes;
        while (!text.empty()) {
            const std::size_t end = text.find('\n' + rule, rule.size());
            if (!text.starts_with(rule) || end == std::string::npos) {
                boxes.push_back({{}, std::exchange(text, {})});
                break;
            }
            const std::string box = text.substr(rule.size(), end - rule.size());
            text.erase(0, end + 1 + rule.size());
            // "Title (kind of box)", an empty line, and the text
            boxes.push_back({box.substr(0, std::min(box.rfind(" (", box.find('\n')), box.size())),
                             box.substr(std::min(box.find("\n\n") + 2, box.size()))});
        }
        return boxes;
    }

private:
#ifdef _WIN32
    /// As a service has one: only the station of the console is seen.
    inline static const BOOL s_isUnseen =
        SetProcessWindowStation(CreateWindowStationW(nullptr, 0, WINSTA_ALL_ACCESS, nullptr));
#endif
};

} // namespace zent::test
