#pragma once

#include <memory>
#include <string>
#include <vector>

namespace zent::test {

struct MessageBox {
    std::string title;
    std::string text; // lines end in "\n"
};

/// Watches the message boxes that the process shows, as long as it lives. On Windows these are real
/// boxes, each answered with OK, or refused if that is wished. Elsewhere, without a display, they
/// are texts on the standard error stream, where nobody can agree to anything; whatever else is
/// written there counts as a box without a title.
class MessageBoxes {
public:
    explicit MessageBoxes(bool refuses = false);
    ~MessageBoxes();
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    /// What was shown since the last call.
    std::vector<MessageBox> take();

private:
    class Watcher;
    std::unique_ptr<Watcher> m_watcher;
};

} // namespace zent::test
