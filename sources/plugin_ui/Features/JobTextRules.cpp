#include "plugin_ui/Features/JobTextRules.h"

#include "resources/ids.h"

#include <algorithm>
#include <string_view>

namespace zent {

namespace {

bool holds(std::u16string_view set, char16_t unit) {
    return set.find(unit) != std::u16string_view::npos;
}

/// Printers look at the low seven bits, and let 8 through.
bool isForbidden(char16_t unit) {
    const auto low = static_cast<char16_t>(unit & 0x7F);
    return low < 8 || (low >= 9 && low <= 31) || low == u'\\' || low == u'"' ||
           holds(u"?{}[]<>*'|:;/,", unit);
}

bool isCapitalOrDigit(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           holds(u"#+-/* ", unit);
}

} // namespace

std::uint32_t findFault(const CXString& text, const AccountRule& rule) {
    if (!text.isEmpty() && text.length() < rule.minimumLength) {
        return IDS_ACCOUNT_TOO_SHORT;
    }
    if (rule.restriction == AccountRule::noMarks && std::ranges::any_of(text.view(), isForbidden)) {
        return IDS_ACCOUNT_FORBIDDEN;
    }
    if (rule.restriction == AccountRule::capitalsAndDigits &&
        !std::ranges::all_of(text.view(), isCapitalOrDigit)) {
        return IDS_ACCOUNT_NOT_CAPITAL;
    }
    return rule.isRequired && text.isEmpty() ? IDS_ACCOUNT_MISSING : noFault;
}

std::uint32_t findFault(const CXString& text, const JobNameRule& rule) {
    if (text.isEmpty()) {
        return rule.isRequired ? IDS_JOB_NAME_MISSING : noFault;
    }
    if (text.view().size() > rule.upperLimit) {
        return IDS_JOB_NAME_TOO_LONG;
    }
    const bool isForbidden =
        rule.restriction == JobNameRule::noExclamationMark && text.find(u'!') >= 0;
    return isForbidden ? IDS_JOB_NAME_FORBIDDEN : noFault;
}

} // namespace zent
