#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

/// What findFault() gives for a text with which nothing is wrong.
constexpr std::uint32_t noFault = 0;

/// What a printer takes in an account.
struct AccountRule {
    /// The restrictions of characters that a capability can name; others restrict nothing.
    static constexpr std::uint32_t capitalsAndDigits = 2;
    static constexpr std::uint32_t noMarks = 3;

    std::int32_t minimumLength = 0;
    std::uint32_t restriction = 0;
    bool isRequired = false;
};

/// What a printer takes as the name of a job.
struct JobNameRule {
    static constexpr std::uint32_t noExclamationMark = 2;

    std::uint32_t upperLimit = 0;
    std::uint32_t restriction = 0;
    bool isRequired = false;
};

/// Says what is wrong with a text, by the id of the message for the user.
std::uint32_t findFault(const CXString& text, const AccountRule& rule);
std::uint32_t findFault(const CXString& text, const JobNameRule& rule);

} // namespace zent
