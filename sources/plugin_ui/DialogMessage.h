#pragma once

#include <cstdint>

#include "platform/Dialog.h"

namespace zent {

/// These messages are the library's own; those of the window system are platform::event.
constexpr std::uint32_t UIM_HIDE = 32769;
constexpr std::uint32_t UIM_SHOW = 32770;
constexpr std::uint32_t UIM_SETTINGS_CHANGED = 32771; // show what the settings hold now
constexpr std::uint32_t UIM_ENABLE = 32772;
constexpr std::uint32_t UIM_DISABLE = 32773;
constexpr std::uint32_t UIM_VALIDATE = 32774; // the result is one of validation
constexpr std::uint32_t UIM_VALIDATE_FOR_SAVE = 32775;
constexpr std::uint32_t UIM_FEATURE_ANNOUNCE = 32776; // wParam: FeatureRole; lParam: UIFeature
constexpr std::uint32_t UIM_LOCK = 32777;             // disables until UIM_UNLOCK
constexpr std::uint32_t UIM_UNLOCK = 32778;

/// The results of a validation.
namespace validation {
constexpr std::intptr_t accepted = 1;
constexpr std::intptr_t refused = 2;
} // namespace validation

/// A message on its way through the tree of a dialog: a plain value, made for each delivery and
/// never kept. Words that may hold a pointer are as wide as one.
class DialogMessage {
public:
    DialogMessage(platform::Dialog& dialog, std::uint32_t message, std::uintptr_t wParam = 0,
                  std::intptr_t lParam = 0)
        : m_dialog(dialog), m_message(message), m_wParam(wParam), m_lParam(lParam) {}

    platform::Dialog& getDialog() const { return m_dialog; }
    platform::WindowHandle getWindow() const { return m_dialog.getHandle(); }
    std::uint32_t getMessage() const { return m_message; }
    std::uintptr_t getWParam() const { return m_wParam; }
    std::intptr_t getLParam() const { return m_lParam; }
    /// The object that lParam points to.
    template <typename T>
    T* getObject() const {
        return reinterpret_cast<T*>(m_lParam);
    }

    /// A command names an item and what happened to it.
    std::uint16_t getItem() const { return static_cast<std::uint16_t>(m_wParam); }
    std::uint16_t getNotification() const { return static_cast<std::uint16_t>(m_wParam >> 16); }
    bool isCommand(std::uint16_t item, std::uint32_t notification) const {
        return m_message == platform::event::command && getItem() == item &&
               getNotification() == notification;
    }

    /// Sends the message to its window; gives the message result.
    std::intptr_t resend() const { return m_dialog.send(m_message, m_wParam, m_lParam); }

private:
    platform::Dialog& m_dialog;
    std::uint32_t m_message;
    std::uintptr_t m_wParam;
    std::intptr_t m_lParam;
};

} // namespace zent
