#include "ocore/Checking/SettingsValidator.h"

#include "ocore/Checking/PrivateCapabilityCheck.h"
#include "support/LibraryTesting.h"
#include "support/ListCapabilities.h"
#include "support/ProblemText.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

class SettingsValidatorTest : public testing::Test {
protected:
    SettingsValidatorTest() {
        useResourceLibrary();
        // The tables trace their building: they stand before any test captures.
        problemsOf(capabilitiesOf("copies-supported(lower-bound=1 upper-bound=9)"), "copies=1");
    }

    static std::string problemsOf(const Capabilities& capabilities, std::string_view ticket) {
        AttrNodeList list = listOf(ticket);
        const std::string before = textOfList(list);
        SettingsProblemList problems;
        const bool isValid = SettingsValidator(capabilities, problems).validate(list);
        EXPECT_EQ(isValid, problems.isEmpty());
        EXPECT_EQ(textOfList(list), before);
        return textOfProblems(problems);
    }
};

TEST_F(SettingsValidatorTest, FindsEachProblemInListOrder) {
    const Capabilities capabilities = capabilitiesOf(
        "job-creation-attributes-supported[value=copies value=sides value=finishings "
        "value=media-col value=page-overrides value=cover-front value=job-phone-number "
        "value=toner-saver value=separator-sheets value=forms-col value=output-bin] "
        "user-defined-values-supported[value=media-color value=output-bin value=cover-front] "
        "copies-supported(lower-bound=1 upper-bound=9) "
        "sides-supported[value=one-sided] finishings-supported[value=enum:3 value=enum:4] "
        "media-col-supported[value=media-size value=media-color] "
        "media-color-supported[value=white] media-type-supported[value=stationery] "
        "media-size-supported{} "
        "page-overrides-supported[value=media-col value=media-color value=media-size value=pages "
        "value=sides] "
        "separator-sheets-supported[value=separator-sheets-type] "
        "separator-sheets-type-supported[value=slip] forms-col-supported[value=form-name]");
    for (const auto& [ticket, problems] : Rows<const char*, const char*>{
             {"", ""},
             {"copies=9 sides=one-sided !copies=99 unknown=1", "-unknown"},
             {"copies=10 sides=two", "*copies *sides"},
             // no "-supported" capability: accepted by name, unless the table knows a set of values
             {"job-phone-number=text:x toner-saver=none output-bin=x job-name=name:x",
              "*toner-saver -job-name"},
             // members of sets go by the name of the set, and each by itself
             {"finishings[value=enum:3 value=enum:9 value=enum:8]",
              "*finishings[2] *finishings[3]"},
             {"sides[value=one-sided value=both]", "*sides[2]"},
             // members of collections are judged by the outermost collection
             {"media-col{media-color=white media-type=stationery media-weight-metric=1}",
              "-media-col/media-weight-metric"},
             {"media-col{media-size{x-dimension=32000 y-dimension=48770} media-color=name:Mine}",
              ""},
             {"media-col{media-size{x-dimension=32000 y-dimension=99999}}",
              "*media-col/media-size"},
             {"page-overrides[value{pages[value(lower-bound=1 upper-bound=2)] sides=both "
              "media-col{media-color=red media-size{x-dimension=99999}}} value{sides=one-sided "
              "media-tooth=fine finishings[value=enum:3]}]",
              "*page-overrides[1]/sides *page-overrides[1]/media-col/media-color "
              "*page-overrides[1]/media-col/media-size -page-overrides[2]/media-tooth "
              "-page-overrides[2]/finishings"},
             // an attribute that goes as a whole isn't looked into, nor is one of the user's own
             {"insert-sheet[value{copies=99}] cover-front{copies=99}", "-insert-sheet"},
             {"copies[value=1 value[value=99 value=2]]", "*copies[2][1]"},
             // what collections make no sense without
             {"separator-sheets{} finishings-col{}", "?separator-sheets/separator-sheets-type "
                                                     "-finishings-col"},
             {"forms-col[value{form-name=name:a} value{}]", "?forms-col[2]/form-name"},
             {"separator-sheets{separator-sheets-type=other}",
              "*separator-sheets/separator-sheets-type"},
         }) {
        EXPECT_EQ(problemsOf(capabilities, ticket), problems) << ticket;
    }
}

// The printer tables say these, whatever a document does.
TEST_F(SettingsValidatorTest, TheTablesLimitNumbersAndTexts) {
    const Capabilities capabilities = capabilitiesOf(
        "job-creation-attributes-supported[value=job-name value=page-ranges value=page-overrides "
        "value=media-col value=pages-per-subset] page-overrides-supported[value=pages] "
        "media-col-supported[value=media-type] user-defined-values-supported[value=media-type] "
        "media-type-supported[value=stationery]");
    const std::string longText(256, 'a');
    const std::pair<std::string, std::string> rows[] = {
        {"job-name=name:" + longText, "0..255:job-name"},
        {"job-name=name:" + longText.substr(1), ""},
        // of a set the first member is read
        {"page-ranges[value(lower-bound=0 upper-bound=9) value(lower-bound=0 upper-bound=1)]",
         "1..9999999:page-ranges[1]"},
        {"page-overrides[value{pages[value(lower-bound=9 upper-bound=10000000)]}]",
         "1..9999999:page-overrides[1]/pages[1]"},
        {"pages-per-subset[value=5 value=0] page-ranges[]", ""},
        {"pages-per-subset[value=0]", "1..9999999:pages-per-subset[1]"},
        // two problems of one node
        {"media-col{media-type=" + longText + "}",
         "0..30:media-col/media-type *media-col/media-type"},
    };
    for (const auto& [ticket, problems] : rows) {
        EXPECT_EQ(problemsOf(capabilities, ticket), problems) << ticket;
    }
}

} // namespace
} // namespace zent::test
