#pragma once

#include <vector>

#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/UserMessage.h"

namespace zent::test {

/// A message box as it would have been shown.
struct ShownBox {
    platform::WindowHandle owner;
    CXString body;
    CXString title;
    std::uint32_t flags;

    bool operator==(const ShownBox&) const = default;
};

/// Takes the place of the user, as long as it lives: keeps each box and answers with one button.
class BoxCapture {
public:
    explicit BoxCapture(std::int32_t answer = messageAnswer::ok) {
        s_answer = answer;
        s_boxes.clear();
        UserMessage::setPresenter(&present);
    }
    ~BoxCapture() { UserMessage::setPresenter(nullptr); }
    BoxCapture(const BoxCapture&) = delete;
    BoxCapture& operator=(const BoxCapture&) = delete;

    const std::vector<ShownBox>& shown() const { return s_boxes; }

private:
    static std::int32_t present(platform::WindowHandle owner, std::u16string_view body,
                                std::u16string_view title, std::uint32_t flags) {
        s_boxes.push_back({owner, body, title, flags});
        return s_answer;
    }

    inline static std::int32_t s_answer = 0;
    inline static std::vector<ShownBox> s_boxes;
};

inline CXString resourceText(std::uint32_t id) { return ResourceLibrary().getString(id); }

} // namespace zent::test
