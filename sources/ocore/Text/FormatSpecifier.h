#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ocore/Text/FormatArgument.h"
#include "ocore/Text/FormatOutput.h"

namespace zent {

/// Hands out arguments in their order.
class FormatArgumentReader {
public:
    explicit FormatArgumentReader(FormatArguments arguments) : m_arguments(arguments) {}

    /// The next argument, or null if there is none left.
    const FormatArgument* take() {
        if (m_next == m_arguments.size()) {
            return nullptr;
        }
        return &m_arguments[m_next++];
    }

private:
    FormatArguments m_arguments;
    std::size_t m_next = 0;
};

/// One specifier of a printf format: flags, width, precision, size prefix and conversion.
class FormatSpecifier {
public:
    /// The largest width and precision.
    static constexpr std::size_t maximumExtent = 65535;

    /// Reads what follows a "%", and takes it off `rest`; a "*" takes its number from the
    /// arguments. Nothing if it is no specifier.
    static std::optional<FormatSpecifier> parse(std::u16string_view& rest,
                                                FormatArgumentReader& arguments);

    /// Appends the next argument in this form. False, with nothing appended, if there is no
    /// argument left or its type doesn't fit.
    bool format(FormatArgumentReader& arguments, FormatOutput& output) const;

private:
    enum class Size { standard, half, longer, wide64 };

    bool parseFlag(char16_t unit);
    bool parseExtents(std::u16string_view& rest, FormatArgumentReader& arguments);
    void parseSizes(std::u16string_view& rest);
    void setWidth(std::int64_t width);

    bool formatCharacter(const FormatArgument& argument, FormatOutput& output) const;
    bool formatText(const FormatArgument& argument, FormatOutput& output) const;
    bool formatPointer(const FormatArgument& argument, FormatOutput& output) const;
    bool formatInteger(const FormatArgument& argument, FormatOutput& output) const;
    bool formatFloat(const FormatArgument& argument, FormatOutput& output) const;

    std::int64_t cutSigned(std::uint64_t bits) const;
    std::uint64_t cutUnsigned(std::uint64_t bits) const;
    std::string_view signOf(bool negative) const;

    /// A formatted value before it is brought to the width.
    template <typename Unit>
    struct Field {
        std::string_view prefix; // sign or base
        std::size_t zeros = 0;   // between prefix and body
        std::basic_string_view<Unit> body;
    };
    template <typename Unit>
    void appendField(const Field<Unit>& field, bool fillWithZeros, FormatOutput& output) const;

    bool m_alternate = false;   // #
    bool m_leftAligned = false; // -
    bool m_plus = false;        // +
    bool m_blank = false;       // space
    bool m_zero = false;        // 0
    std::size_t m_width = 0;
    std::optional<std::size_t> m_precision;
    Size m_size = Size::standard;
    char16_t m_conversion = u'\0';
};

} // namespace zent
