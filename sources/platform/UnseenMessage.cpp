#include "platform/UnseenMessage.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/CodePage.h"

namespace zent::platform {

namespace {

/// Keeps the line ends of a message, but no other control character, which could steer a terminal.
std::string printable(std::u16string_view text) {
    std::string result = toAnsi(text);
    std::erase(result, '\r');
    std::replace_if(
        result.begin(), result.end(),
        [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\n') || c == 0x7F; },
        ' ');
    return result;
}

const char* nameOfIcon(std::uint32_t flags) {
    switch (flags & 0xF0) {
    case 16:
        return "error";
    case 32:
        return "question";
    case 48:
        return "warning";
    case 64:
        return "information";
    default:
        return "message";
    }
}

struct Answer {
    std::int32_t number;
    const char* name;
};

Answer answerOfNobody(std::uint32_t flags) {
    switch (flags & 0xF) {
    case 0:
        return {1, "OK"};
    case 2: // Abort, Retry, Ignore
        return {3, "Abort"};
    case 4: // Yes, No
        return {7, "No"};
    default:
        return {2, "Cancel"};
    }
}

} // namespace

std::int32_t printUnseenMessage(std::u16string_view body, std::u16string_view title,
                                std::uint32_t flags) {
    constexpr std::int32_t ok = 1;
    const Answer answer = answerOfNobody(flags);
    const std::string rule(72, '-');
    std::string box = rule + '\n' + printable(title) + " (" + nameOfIcon(flags) + ")\n\n";
    box += printable(body) + '\n';
    if (answer.number != ok) {
        box += std::string("\nThere is no display to ask on: taken as ") + answer.name + ".\n";
    }
    box += rule + '\n';
    // The text is written in one piece, so that nothing that another thread prints comes in
    // between.
    std::fwrite(box.data(), 1, box.size(), stderr);
    return answer.number;
}

} // namespace zent::platform
