#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace zent {

class CXString;

/// One argument of a formatted text, with its type. It refers to the text it was made from and
/// lives no longer than the formatting call.
class FormatArgument {
public:
    struct WideText {
        const char16_t* text; // may be null
        std::size_t length;
    };
    struct NarrowText {
        const char* text; // may be null
        std::size_t length;
    };
    using Value =
        std::variant<std::int64_t, std::uint64_t, double, WideText, NarrowText, const void*>;

    template <std::integral T>
    explicit FormatArgument(T number) {
        if constexpr (std::is_signed_v<T>) {
            m_value = static_cast<std::int64_t>(number);
        } else {
            m_value = static_cast<std::uint64_t>(number);
        }
    }
    template <typename T>
    requires std::is_enum_v<T>
    explicit FormatArgument(T number)
        : FormatArgument(static_cast<std::underlying_type_t<T>>(number)) {}
    explicit FormatArgument(double number) : m_value(number) {}
    explicit FormatArgument(const char16_t* text)
        : m_value(WideText{text, text ? std::u16string_view(text).size() : 0}) {}
    explicit FormatArgument(std::u16string_view text)
        : m_value(WideText{text.data(), text.size()}) {}
    explicit FormatArgument(const CXString& text);
    explicit FormatArgument(const char* text)
        : m_value(NarrowText{text, text ? std::string_view(text).size() : 0}) {}
    explicit FormatArgument(std::string_view text)
        : m_value(NarrowText{text.data(), text.size()}) {}
    explicit FormatArgument(const std::string& text) : FormatArgument(std::string_view(text)) {}
    explicit FormatArgument(std::nullptr_t) : m_value(WideText{nullptr, 0}) {}
    explicit FormatArgument(const void* pointer) : m_value(pointer) {}

    const Value& value() const { return m_value; }

private:
    Value m_value;
};

using FormatArguments = std::span<const FormatArgument>;
template <std::size_t N>
using FormatArgumentList = std::array<FormatArgument, N>;

} // namespace zent
