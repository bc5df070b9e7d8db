#include <gtest/gtest.h>

#include "ocore/Faults/Exceptions.h"
#include "plugin_ui/Controls/CharacterFilter.h"
#include "plugin_ui/Features/JobTextRules.h"
#include "resources/ids.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

constexpr char16_t backspace = 8;
constexpr char16_t escape = 0x1B;

TEST(CharacterFilterTest, NumberBoxes) {
    using enum NumberType;
    struct Row {
        NumberType type;
        std::u16string_view text;
        std::int32_t start;
        std::int32_t end;
        char16_t character;
        bool isAccepted;
    };
    const Row rows[] = {
        {unsignedInteger, u"", 0, 0, u'7', true},
        {unsignedInteger, u"", 0, 0, u'-', false},
        {signedInteger, u"", 0, 0, u'-', true},
        {signedInteger, u"12", 1, 1, u'-', false},
        {signedInteger, u"-2", 0, 0, u'-', false},
        {signedInteger, u"-2", 0, 1, u'-', true}, // replaces the one that is there
        {signedInteger, u"12", 0, 0, u'.', false},
        {decimal, u"1", 1, 1, u'.', true},
        {decimal, u"1.5", 3, 3, u'.', false},
        {decimal, u"1.5", 1, 2, u'.', true},
        {decimal, u"1.5", 0, 3, u'-', true},
        {decimal, u"1", 1, 1, u',', false},
        {signedInteger, u"1234567890", 10, 10, u'1', false}, // full
        {signedInteger, u"1234567890", 9, 10, u'1', true},
        {signedInteger, u"1234567890", 10, 10, backspace, true},
        {unsignedInteger, u"1234567890", 10, 10, escape, true},
        {unsignedInteger, u"1", 1, 1, u'\u0663', false}, // a digit of another script
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            acceptsNumberCharacter(row.type, {row.text, row.start, row.end, 10}, row.character),
            row.isAccepted)
            << CXString(row.text).toNarrow() << " and " << static_cast<int>(row.character);
    }
    EXPECT_THROW(acceptsNumberCharacter(NumberType(4), {u"", 0, 0, 10}, u'1'),
                 UnknownCaseException);
}

TEST(CharacterFilterTest, TextBoxes) {
    struct Row {
        std::uint32_t mode;
        std::u16string_view taken;
        std::u16string_view refused;
    };
    for (const Row& row : {Row{1, u"aZ9 !_-\u00e9\t", u""}, Row{2, u"aZ9", u" !_-"},
                           Row{3, u"aZ9", u" !_-"}, Row{4, u"aZ9 !_", u"-?\t"}}) {
        const auto accepts = [&](char16_t character) {
            return acceptsTextCharacter(FilterMode(row.mode), {u"abc", 3, 3, 4}, character);
        };
        for (const char16_t character : row.taken) {
            EXPECT_TRUE(accepts(character)) << row.mode << ' ' << static_cast<int>(character);
        }
        for (const char16_t character : row.refused) {
            EXPECT_FALSE(accepts(character)) << row.mode << ' ' << static_cast<int>(character);
        }
    }
    EXPECT_FALSE(acceptsTextCharacter(FilterMode::all, {u"abcd", 2, 2, 4}, u'x'));
    EXPECT_THROW(acceptsTextCharacter(FilterMode(5), {u"", 0, 0, 4}, u'x'), UnknownCaseException);
}

TEST(NumberTextTest, Texts) {
    for (const auto& [number, digits] :
         {std::pair(0, 1), {9, 1}, {10, 2}, {-1, 2}, {2147483647, 10}, {-2147483647 - 1, 11}}) {
        EXPECT_EQ(countDigits(number), digits);
    }
    for (const auto& [text, number] : {std::pair(u"", 0.0),
                                       {u" 1.25", 1.25},
                                       {u"-.5", -0.5},
                                       {u"-", 0.0},
                                       {u"2.5.1", 2.5},
                                       {u"inf", 0.0},
                                       {u"7mm", 7.0},
                                       {u"\u0663", 0.0}}) {
        EXPECT_EQ(parseDecimal(text), number);
    }
    EXPECT_EQ(formatDecimal(1.254, 2), u"1.25");
    EXPECT_EQ(formatDecimal(1.26, 3), u"1.3");
}

TEST(NumberTextTest, TextsBeginWithWholeNumbers) {
    for (const auto& [text, asSigned, asUnsigned] :
         Rows<const char16_t*, std::int64_t, std::int64_t>{{u"", 0, 0},
                                                           {u"  42 sheets", 42, 42},
                                                           {u"-5", -5, 0},
                                                           {u"-2147483648", -2147483648LL, 0},
                                                           {u"2147483648", 0, 2147483648LL},
                                                           {u"4294967295", 0, 4294967295LL},
                                                           {u"99999999999999999999", 0, 0}}) {
        EXPECT_EQ(parseInteger(text, true), asSigned);
        EXPECT_EQ(parseInteger(text, false), asUnsigned);
    }
}

TEST(NumberTextTest, StepsGoAgainstTheSign) {
    const NumberBounds<double> decimals{-1, 2};
    EXPECT_DOUBLE_EQ(stepDecimal(0.5, 1, -1, &decimals), 0.6);
    EXPECT_DOUBLE_EQ(stepDecimal(0.5, 2, 1, &decimals), 0.49);
    EXPECT_DOUBLE_EQ(stepDecimal(1.95, 1, -1, &decimals), 1.95); // it would leave the bounds
    EXPECT_DOUBLE_EQ(stepDecimal(1.95, 1, -1, nullptr), 2.05);
    const NumberBounds<std::int32_t> integers{1, 99};
    EXPECT_EQ(stepInteger(5, -1, &integers), 6);
    EXPECT_EQ(stepInteger(5, 10, &integers), 1);
    EXPECT_EQ(stepInteger(9999999999.0, -1, &integers), 99);
    EXPECT_EQ(stepInteger(9999999999.0, -1, nullptr), 2147483647);
}

TEST(JobTextRulesTest, Accounts) {
    for (const auto& [what, text, rule, fault] :
         Rows<const char*, CXString, AccountRule, std::uint32_t>{
             {"empty", u"", {2, 3, false}, noFault},
             {"empty though required", u"", {2, 3, true}, IDS_ACCOUNT_MISSING},
             {"too short", u"A", {2, 3, true}, IDS_ACCOUNT_TOO_SHORT},
             {"long enough", u"AB", {2, 3, true}, noFault},
             {"8 is let through", u"A\u0008", {0, 3, false}, noFault},
             {"7 isn't", u"A\u0007", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"nor 31", u"A\u001F", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"32 is", u"A B", {0, 3, false}, noFault},
             {"low bits of 3", u"A\u0103", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"low bits of a backslash", u"A\u00DC", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"backslash", u"A\\", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"last mark", u"a,b", {0, 3, false}, IDS_ACCOUNT_FORBIDDEN},
             {"other marks", u"a!#$%&()=~-_.@+", {0, 3, false}, noFault},
             {"capitals", u"AZ 09#+-/*", {0, 2, false}, noFault},
             {"lower case", u"aZ", {0, 2, false}, IDS_ACCOUNT_NOT_CAPITAL},
             {"another mark", u"A_", {0, 2, false}, IDS_ACCOUNT_NOT_CAPITAL},
             {"no rule", u"a\\\t", {0, 1, false}, noFault},
         }) {
        EXPECT_EQ(findFault(text, rule), fault) << what;
    }
}

TEST(JobTextRulesTest, JobNames) {
    for (const auto& [text, rule, fault] : Rows<CXString, JobNameRule, std::uint32_t>{
             {u"", {4, 2, false}, noFault},
             {u"", {4, 2, true}, IDS_JOB_NAME_MISSING},
             {u"abcd", {4, 1, true}, noFault},
             {u"abcde", {4, 1, true}, IDS_JOB_NAME_TOO_LONG},
             {u"abc!", {4, 1, true}, noFault},
             {u"abc!", {4, 2, true}, IDS_JOB_NAME_FORBIDDEN},
             {u"abcd!", {4, 2, false}, IDS_JOB_NAME_TOO_LONG},
         }) {
        EXPECT_EQ(findFault(text, rule), fault) << text.toNarrow();
    }
}

} // namespace
} // namespace zent::test
