#include "ocore/Text/PositionalFormat.h"

#include "ocore/Text/FormatSpecifier.h"

namespace zent {

namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

/// Takes the number of an insert, one digit or two.
std::size_t takeNumber(std::u16string_view& rest) {
    std::size_t number = 0;
    for (int digits = 0; digits < 2 && !rest.empty() && isDigit(rest.front()); ++digits) {
        number = number * 10 + (rest.front() - u'0');
        rest.remove_prefix(1);
    }
    return number;
}

/// Takes a form between exclamation marks, if there is one. False if the second mark is missing.
bool takeForm(std::u16string_view& rest, std::u16string_view& form) {
    if (!rest.starts_with(u'!')) {
        return true;
    }
    const std::size_t end = rest.find(u'!', 1);
    if (end == std::u16string_view::npos) {
        return false;
    }
    form = rest.substr(1, end - 1);
    rest.remove_prefix(end + 1);
    return true;
}

/// Formats an insert; `rest` begins with its number.
bool formatInsert(std::u16string_view& rest, FormatArguments arguments, FormatOutput& output) {
    const std::u16string_view whole = rest;
    const std::size_t number = takeNumber(rest);
    std::u16string_view form = u"s";
    if (number > arguments.size() || !takeForm(rest, form)) {
        return false;
    }
    FormatArgumentReader reader(arguments.subspan(number - 1));
    const auto specifier = FormatSpecifier::parse(form, reader);
    if (!specifier || !form.empty() || !specifier->format(reader, output)) {
        output.append(1, u'%');
        output.append(whole.substr(0, whole.size() - rest.size()));
    }
    return !reader.ranOut();
}

std::u16string_view escapeText(const char16_t& unit) {
    switch (unit) {
    case u'n':
        return u"\r\n";
    case u'r':
        return u"\r";
    case u't':
        return u"\t";
    case u'b':
        return u" ";
    default:
        return {&unit, 1};
    }
}

} // namespace

bool formatPositional(std::u16string_view format, FormatArguments arguments, FormatOutput& output) {
    while (!format.empty() && !output.isFull()) {
        const std::size_t literal = std::min(format.find_first_of(u"%\r\n"), format.size());
        output.append(format.substr(0, literal));
        format.remove_prefix(literal);
        if (format.empty()) {
            break;
        }
        if (format.front() != u'%') {
            output.append(u"\r\n");
            format.remove_prefix(format.starts_with(u"\r\n") ? 2 : 1);
            continue;
        }
        format.remove_prefix(1);
        if (format.empty()) {
            return false;
        }
        if (format.front() == u'0') {
            break;
        }
        if (isDigit(format.front())) {
            if (!formatInsert(format, arguments, output)) {
                return false;
            }
        } else {
            output.append(escapeText(format.front()));
            format.remove_prefix(1);
        }
    }
    return true;
}

} // namespace zent
