#pragma once

#include <cstdint>

#include "ocore/Text/CXString.h"

namespace zent {

/// Texts of message boxes: what is wrong with a text, and the titles.
namespace jobText {
constexpr std::uint32_t nothing = 0;
constexpr std::uint32_t accountMissing = 6202;
constexpr std::uint32_t accountTitle = 6203;
constexpr std::uint32_t accountTooShort = 6204;
constexpr std::uint32_t accountNotCapital = 6205;
constexpr std::uint32_t accountForbidden = 6206;
constexpr std::uint32_t nameTitle = 6207;
constexpr std::uint32_t nameTooLong = 6208;
constexpr std::uint32_t nameForbidden = 6209;
constexpr std::uint32_t nameMissing = 6210;
constexpr std::uint32_t nameInitial = 6212;
} // namespace jobText

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

/// What is wrong with a text, as one of jobText.
std::uint32_t findFault(const CXString& text, const AccountRule& rule);
std::uint32_t findFault(const CXString& text, const JobNameRule& rule);

} // namespace zent
