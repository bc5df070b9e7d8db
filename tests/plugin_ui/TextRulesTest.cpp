#include "plugin_ui/Controls/CharacterFilter.h"
#include "plugin_ui/Features/JobTextRules.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

constexpr char16_t backspace = 8;
constexpr char16_t escape = 0x1B;

TEST(CharacterFilterTest, NumberBoxes) {
    using enum NumberType;
    for (const auto& [type, text, start, end, character, isAccepted] :
         Rows<NumberType, std::u16string_view, std::int32_t, std::int32_t, char16_t, bool>{
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
         }) {
        EXPECT_EQ(acceptsNumberCharacter(type, {text, start, end, 10}, character), isAccepted)
            << CXString(text).toNarrow() << " and " << static_cast<int>(character);
    }
    EXPECT_THROW(acceptsNumberCharacter(NumberType(4), {u"", 0, 0, 10}, u'1'),
                 UnknownCaseException);
}

TEST(CharacterFilterTest, TextBoxes) {
    const std::tuple<std::uint32_t, std::u16string_view, std::u16string_view> rows[] = {
        {1, u"aZ9 !_-\u00e9\t", u""},
        {2, u"aZ9", u" !_-"},
        {3, u"aZ9", u" !_-"},
        {4, u"aZ9 !_", u"-?\t"}};
    for (const auto& [mode, taken, refused] : rows) {
        const std::u16string all = std::u16string(taken) + std::u16string(refused);
        for (const char16_t character : all) {
            EXPECT_EQ(acceptsTextCharacter(FilterMode(mode), {u"abc", 3, 3, 4}, character),
                      refused.find(character) == std::u16string_view::npos)
                << mode << ' ' << static_cast<int>(character);
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
    const std::pair<std::u16string_view, double> decimals[] = {
        {u"", 0.0},      {u" 1.25", 1.25}, {u"-.5", -0.5}, {u"-", 0.0},
        {u"2.5.1", 2.5}, {u"inf", 0.0},    {u"7mm", 7.0},  {u"\u0663", 0.0}};
    for (const auto& [text, number] : decimals) {
        EXPECT_EQ(parseDecimal(text), number);
    }
    EXPECT_EQ(formatDecimal(1.254, 2), u"1.25");
    EXPECT_EQ(formatDecimal(1.26, 3), u"1.3");
}

TEST(NumberTextTest, TextsBeginWithWholeNumbers) {
    const std::tuple<std::u16string_view, std::int64_t, std::int64_t> rows[] = {
        {u"", 0, 0},
        {u"  42 sheets", 42, 42},
        {u"-5", -5, 0},
        {u"-2147483648", -2147483648LL, 0},
        {u"2147483648", 0, 2147483648LL},
        {u"4294967295", 0, 4294967295LL},
        {u"99999999999999999999", 0, 0}};
    for (const auto& [text, asSigned, asUnsigned] : rows) {
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
    const std::tuple<CXString, bool, std::uint32_t> texts[] = {{u"", false, noFault},
                                                               {u"", true, IDS_ACCOUNT_MISSING},
                                                               {u"A", true, IDS_ACCOUNT_TOO_SHORT},
                                                               {u"AB", true, noFault}};
    for (const auto& [text, isRequired, fault] : texts) {
        EXPECT_EQ(findFault(text, AccountRule{2, 3, isRequired}), fault) << text.toNarrow();
    }
    // Of 7, 9, 31 and the backslash the lowest seven bits count; 8 is let through.
    for (const auto& [restriction, taken, refused, fault] :
         Rows<std::uint32_t, std::u16string_view, std::u16string_view, std::uint32_t>{
             {3, u"aZ9\u0008 !#$%&()=~-_.@+", u"\u0007\u0009\u001F\u0103\u00DC\\\"?{}[]<>*'|:;/,",
              IDS_ACCOUNT_FORBIDDEN},
             {2, u"AZ 09#+-/*", u"z_\u00C4", IDS_ACCOUNT_NOT_CAPITAL},
             {1, u"a\\\t", u"", noFault}}) {
        const std::u16string all = std::u16string(taken) + std::u16string(refused);
        for (const char16_t character : all) {
            const bool isTaken = refused.find(character) == std::u16string_view::npos;
            EXPECT_EQ(findFault(CXString(std::u16string(u"A") + character),
                                AccountRule{0, restriction, false}),
                      isTaken ? noFault : fault)
                << restriction << ' ' << static_cast<int>(character);
        }
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
