#include "platform/Utf8.h"

#include <algorithm>
#include <optional>

#include "platform/Surrogates.h"

namespace zent::platform {

namespace {

constexpr char32_t replacement = 0xFFFD;

unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

/// What the first byte of a UTF-8 sequence determines: how many bytes follow, the range of the next
/// one (narrower than 80 to BF where overlong forms, surrogates and values above 10FFFF must be
/// kept out), and its bits of the value. No sequence starts with a byte that `isLead` is false for.
struct Lead {
    bool isLead;
    int following;
    unsigned char lowest;
    unsigned char highest;
    char32_t bits;
};

Lead classify(unsigned char byte) {
    if (byte < 0x80) {
        return {true, 0, 0, 0, byte};
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {true, 1, 0x80, 0xBF, byte & 0x1FU};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        const unsigned char lowest = byte == 0xE0 ? 0xA0 : 0x80;
        const unsigned char highest = byte == 0xED ? 0x9F : 0xBF;
        return {true, 2, lowest, highest, byte & 0x0FU};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const unsigned char lowest = byte == 0xF0 ? 0x90 : 0x80;
        const unsigned char highest = byte == 0xF4 ? 0x8F : 0xBF;
        return {true, 3, lowest, highest, byte & 0x07U};
    }
    return {false, 0, 0, 0, 0};
}

/// Takes one character from `position` on. Where there is none it gives nothing, and takes the
/// longest piece that could have begun one.
std::optional<char32_t> decodeNext(std::string_view text, std::size_t& position) {
    Lead lead = classify(byteAt(text, position++));
    if (!lead.isLead) {
        return std::nullopt;
    }
    char32_t value = lead.bits;
    for (int i = 0; i < lead.following; ++i) {
        if (position == text.size() || byteAt(text, position) < lead.lowest ||
            byteAt(text, position) > lead.highest) {
            return std::nullopt;
        }
        value = (value << 6) | (byteAt(text, position++) & 0x3FU);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
    }
    return value;
}

void append(char32_t value, std::u16string& wide) {
    if (value < 0x10000) {
        wide.push_back(static_cast<char16_t>(value));
    } else {
        wide.push_back(static_cast<char16_t>(0xD7C0 + (value >> 10)));
        wide.push_back(static_cast<char16_t>(0xDC00 + (value & 0x3FF)));
    }
}

void encode(char32_t value, std::string& out) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    const auto putFollowing = [&](int shift) { put(0x80 | ((value >> shift) & 0x3F)); };
    if (value < 0x80) {
        put(value);
    } else if (value < 0x800) {
        put(0xC0 | (value >> 6));
        putFollowing(0);
    } else if (value < 0x10000) {
        put(0xE0 | (value >> 12));
        putFollowing(6);
        putFollowing(0);
    } else {
        put(0xF0 | (value >> 18));
        putFollowing(12);
        putFollowing(6);
        putFollowing(0);
    }
}

} // namespace

std::u16string takeUtf8(std::string_view& narrow) {
    std::u16string wide;
    wide.reserve(narrow.size());
    std::size_t taken = 0;
    for (std::size_t i = 0; i < narrow.size(); taken = i) {
        const std::optional<char32_t> value = decodeNext(narrow, i);
        if (!value) {
            break;
        }
        append(*value, wide);
    }
    narrow.remove_prefix(taken);
    return wide;
}

std::u16string fromUtf8(std::string_view narrow) {
    // Most texts are plain ASCII, whole or up to their first name.
    const auto isOther = [](char character) {
        return static_cast<unsigned char>(character) >= 0x80;
    };
    const auto other = std::find_if(narrow.begin(), narrow.end(), isOther);
    std::u16string wide(narrow.begin(), other);
    wide.reserve(narrow.size());
    for (std::size_t i = wide.size(); i < narrow.size();) {
        append(decodeNext(narrow, i).value_or(replacement), wide);
    }
    return wide;
}

std::string toUtf8(std::u16string_view wide) {
    std::string narrow;
    narrow.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        const char16_t unit = wide[i];
        if (isHighSurrogate(unit) && i + 1 < wide.size() && isLowSurrogate(wide[i + 1])) {
            const char32_t high = unit - 0xD7C0U;
            encode((high << 10) | (wide[++i] & 0x3FFU), narrow);
        } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
            encode(replacement, narrow);
        } else {
            encode(unit, narrow);
        }
    }
    return narrow;
}

} // namespace zent::platform
