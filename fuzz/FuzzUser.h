#pragma once

// The user of a session that is fuzzed.

#include <optional>

#include "SessionArguments.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "support/FakeWindowSystem.h"

namespace zent::fuzz {

/// Takes the place of the user as long as it lives: does in dialogs what the input says, and
/// answers message boxes. No window opens.
class FuzzUser {
public:
    explicit FuzzUser(SessionArguments& arguments) : m_arguments(arguments) {
        s_answer = messageAnswer::ok;
        UserMessage::setPresenter([](platform::WindowHandle, std::u16string_view,
                                     std::u16string_view, std::uint32_t style) {
            return (style & messageStyle::okCancel) != 0 ? s_answer : messageAnswer::ok;
        });
    }
    FuzzUser(const FuzzUser&) = delete;
    FuzzUser& operator=(const FuzzUser&) = delete;
    ~FuzzUser() { UserMessage::setPresenter(nullptr); }

    /// Before a call that may ask: a byte that says how boxes are answered, and whether there are
    /// no windows. For dialogs more follow.
    void prepare() {
        constexpr std::uint8_t cancelBit = 1;
        constexpr std::uint8_t noWindowsBit = 2;
        const std::uint8_t choice = m_arguments.takeByte();
        s_answer = (choice & cancelBit) == 0 ? messageAnswer::ok : messageAnswer::cancel;
        m_noWindows.reset();
        if ((choice & noWindowsBit) != 0) {
            m_noWindows.emplace(nullptr);
        }
        m_windows.onceOpen([this](Window dialog) { actOn(dialog); });
    }

private:
    using Window = test::FakeWindowSystem::Window;
    using Id = test::FakeWindowSystem::Id;

    /// Plays some acts, and then presses OK or Cancel. A dialog that is still open is cancelled.
    void actOn(Window dialog) {
        constexpr int mostActs = 32;
        const int acts = m_arguments.takeByte() % mostActs;
        for (int i = 0; i < acts; ++i) {
            actOnItem(dialog);
        }
        constexpr Id buttons = 2;
        m_windows.click(dialog, static_cast<Id>(1 + m_arguments.takeByte() % buttons));
    }

    void actOnItem(Window dialog) {
        const std::vector<Id> shown = m_windows.shownItems(dialog);
        if (shown.empty()) {
            return;
        }
        const Id id = shown[m_arguments.takeByte() % shown.size()];
        const auto& item = m_windows.item(dialog, id);
        const bool takesText = item.windowClass == u"#129" || item.windowClass == u"Edit";
        if (takesText) {
            editText(dialog, id);
        } else if (!item.list.empty()) {
            const std::size_t index = m_arguments.takeNumber() % item.list.size();
            m_windows.choose(dialog, id, static_cast<std::int32_t>(index));
        } else if (item.windowClass == u"#128") {
            m_windows.click(dialog, id);
        } else {
            move(dialog, id);
        }
    }

    void editText(Window dialog, Id id) {
        if (m_arguments.takeByte() % 2 == 0) {
            m_windows.clear(dialog, id);
        }
        std::u16string typed;
        for (const char byte : m_arguments.takeBytes()) {
            typed += unitOf(static_cast<std::uint8_t>(byte));
        }
        m_windows.type(dialog, id, typed);
        m_windows.leave(dialog, id);
    }

    /// Moves a spin or slider; any other item ignores it.
    void move(Window dialog, Id id) {
        const std::int32_t by = m_arguments.takeSigned();
        const auto& item = m_windows.item(dialog, id);
        if (item.lower <= by && by <= item.upper) {
            m_windows.slide(dialog, id, by);
        } else {
            m_windows.spin(dialog, id, by % 2 == 0 ? 1 : -1);
        }
    }

    inline static std::int32_t s_answer = messageAnswer::ok;

    SessionArguments& m_arguments;
    test::FakeWindowSystem m_windows;
    std::optional<WindowSystemReplacement> m_noWindows;
};

} // namespace zent::fuzz
