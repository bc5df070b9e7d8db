#include "ocore/Repair/SettingsProblemFixer.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Checking/FailedEmbeddedSpacesCapability.h"
#include "ocore/Checking/FailedRangeCapability.h"
#include "ocore/Checking/MissingFeatureProblem.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Checking/UnsupportedAttribute.h"
#include "ocore/Checking/UnsupportedValue.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "support/LibraryTesting.h"
#include "support/ListCapabilities.h"
#include "support/ProblemText.h"

namespace zent::test {
namespace {

const char* const offered =
    "job-creation-attributes-supported[value=copies value=sides value=finishings value=media-col "
    "value=page-overrides value=job-name value=job-save-disposition value=form-save "
    "value=separator-sheets value=forms-col value=page-ranges value=pages-per-subset] "
    "copies-supported(lower-bound=1 upper-bound=9) sides-supported[value=one-sided] "
    "finishings-supported[value=enum:3 value=enum:4] "
    "media-col-supported[value=media-color value=media-type] "
    "user-defined-values-supported[value=media-type] media-color-supported[value=white value=red] "
    "media-type-supported[value=stationery] "
    "page-overrides-supported[value=media-col value=media-color value=pages value=sides "
    "value=page-overrides] job-save-disposition-supported[value=save-disposition value=save-info] "
    "save-info-supported[value=save-name] save-name-supported=boolean:true "
    "save-disposition-supported[value=none] form-save-supported[value=form-save-disposition "
    "value=form-save-info] form-save-disposition-supported[value=print-save] "
    "form-save-info-supported[value=form-save-name] form-save-name-supported=boolean:true "
    "separator-sheets-supported[value=separator-sheets-type] "
    "separator-sheets-type-supported[value=slip] forms-col-supported[value=form-name]";

const char* const defaults = "copies=1 finishings[value=enum:3] sides=one-sided "
                             "media-col{media-color=white media-type=stationery} "
                             "job-save-disposition{save-disposition=none}";

class SettingsProblemFixerTest : public testing::Test {
protected:
    SettingsProblemFixerTest() { useResourceLibrary(); }

    static std::string fix(AttrNodeList& ticket, std::uint32_t model = 43) {
        const Capabilities capabilities = capabilitiesOf(offered, model);
        Settings settings(&ticket);
        SettingsProblemList problems;
        validate(capabilities, settings, problems);
        const Settings values(listOf(defaults));
        SettingsProblemFixer(values).fix(problems);
        SettingsProblemList remaining;
        EXPECT_TRUE(validate(capabilities, settings, remaining)) << textOfProblems(remaining);
        return textOfList(ticket);
    }
};

TEST_F(SettingsProblemFixerTest, RepairsByDefaultByLimitOrByRemoval) {
    const std::string longName(300, 'n');
    const std::pair<std::string, std::string> rows[] = {
        {"unknown=1 copies=2", "copies=2"},
        {"copies=2 media-col[media-color=white media-type=stationery]", "copies=2"},
        {"copies=10 sides=both", "copies=1 sides=one-sided"},
        {"media-col{media-color=blue media-type=stationery}",
         "media-col{media-color=white media-type=stationery}"},
        // elsewhere than at the feature's own place the default isn't meant
        {"page-overrides[value{pages[value(lower-bound=1 upper-bound=2)] sides=both "
         "media-col{media-color=blue}}]",
         "page-overrides[value{pages[value(lower-bound=1 upper-bound=2)]}]"},
        // members of sets; a set without members goes, and all that held nothing else
        {"finishings[value=enum:9 value=enum:4]", "finishings[value=enum:3 value=enum:4]"},
        {"sides[value=both] copies=2", "copies=2"},
        {"page-overrides[value{sides[value=both]}] copies=2", "copies=2"},
        // limits
        {"job-name=name:" + longName, "job-name=name:" + longName.substr(0, 255)},
        {"page-ranges[value(lower-bound=0 upper-bound=99999999)]",
         "page-ranges[value(lower-bound=1 upper-bound=9999999)]"},
        {"pages-per-subset[value=0 value=7]", "pages-per-subset[value=1 value=7]"},
        // two problems of one node
        {"media-col{media-type=" + longName + "}", "media-col{media-type=stationery}"},
        {"page-overrides[value{media-col{media-type=" + longName + "}}] copies=2", "copies=2"},
        // what is missing is added, or the collection goes as a whole
        {"job-save-disposition{save-info[value{save-name=name:a}]}",
         "job-save-disposition{save-info[value{save-name=name:a}] save-disposition=none}"},
        {"forms-col[value{} value{form-name=name:a}]", "forms-col[value{form-name=name:a}]"},
        {"forms-col[value{}] separator-sheets{} copies=2", "copies=2"},
        {"form-save{form-save-disposition=other form-save-info[value{form-save-name=name:a}]} "
         "copies=2",
         "copies=2"},
        {"job-save-disposition{save-disposition=other}",
         "job-save-disposition{save-disposition=none}"},
    };
    for (const auto& [ticket, repaired] : rows) {
        AttrNodeList list = listOf(ticket);
        EXPECT_EQ(fix(list), repaired) << ticket;
    }
}

TEST_F(SettingsProblemFixerTest, BlanksBecomeUnderscores) {
    AttrNodeList ticket = listOf("media-col{media-color=red}");
    AttrNodeList& medium = *embeddedList(ticket.getNodeAt(0));
    medium.addValue(syntax::name, u" plain  paper", AttrID(u"media-type"));
    EXPECT_EQ(fix(ticket, 17), "media-col{media-color=red media-type=name:_plain__paper}");
}

TEST_F(SettingsProblemFixerTest, HalfACharacterIsCutToo) {
    AttrNodeList ticket;
    CXString name(std::u16string(254, u'n'));
    name += u"\U0001D11E"; // two units, of which the limit would leave one
    ticket.addValue(syntax::name, name, AttrID(u"job-name"));
    EXPECT_EQ(fix(ticket), "job-name=name:" + std::string(254, 'n'));
}

// However they are found, what goes as a whole goes before what lies in it is looked at.
TEST_F(SettingsProblemFixerTest, ProblemsInWhatHasGoneArePassedOver) {
    AttrNodeList ticket = listOf("page-overrides[value{sides=both copies=1}] copies=3");
    AttrNode& overrides = ticket.getNodeAt(0);
    AttrNodeList& set = *embeddedList(overrides);
    AttrNodeList& entry = *embeddedList(set.getNodeAt(0));
    const SettingsContext::Step outer{&ticket, &overrides, 0, false};
    const SettingsContext::Step member{&set, &set.getNodeAt(0), 0, true};
    const SettingsContext::Step inner{&entry, &entry.getNodeAt(0), 0, false};
    SettingsProblemList problems;
    problems.setTicket(&ticket);
    const CXString sides(u"sides");
    const CXString pageOverrides(u"page-overrides");
    problems.addProblem(
        UnsupportedValue(SettingsContext(entry, {outer, member, inner}, AttrID(sides), sides)));
    problems.addProblem(MissingFeatureProblem(
        SettingsContext(entry, {outer, member}, AttrID(sides), sides), feature::sides));
    problems.addProblem(UnsupportedAttribute(
        SettingsContext(ticket, {outer}, AttrID(pageOverrides), pageOverrides)));
    SettingsProblemFixer(Settings(listOf(defaults))).fix(problems);
    EXPECT_EQ(textOfList(ticket), "copies=3");
}

} // namespace
} // namespace zent::test
