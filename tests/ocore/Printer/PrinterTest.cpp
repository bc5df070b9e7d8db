#include "ocore/Printer/NonDriverBasedPrinter.h"

#include <string>

#include <gtest/gtest.h>

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/User.h"
#include "resources/UseResourceLibrary.h"
#include "support/Raised.h"
#include "support/ScratchPreferences.h"

namespace zent::test {
namespace {

class PrinterTest : public testing::Test {
protected:
    PrinterTest() { useResourceLibrary(); }

private:
    ScratchPreferences m_preferences;
};

NonDriverBasedPrinter printer(std::uint32_t model, std::uint32_t pdl, std::uint32_t form) {
    return {model, pdl, form, CXString(), true};
}

TEST_F(PrinterTest, TheModelSettlesFormThreeForGood) {
    struct Row {
        std::uint32_t model;
        std::uint32_t form;
        std::uint32_t settled;
    };
    // Model 1 is of a family that takes comment lines alone, model 2 takes documents.
    for (const Row& row : {Row{1, 3, 2}, Row{2, 3, 1}, Row{1, 1, 1}, Row{2, 0, 0}, Row{2, 4, 4}}) {
        auto made = printer(row.model, 2, row.form);
        EXPECT_EQ(made.getInstructionForm(), row.settled);
        EXPECT_EQ(made.getInstructionForm(), row.settled);
    }
}

TEST_F(PrinterTest, DefaultsDifferByFamily) {
    struct Row {
        std::uint32_t model;
        std::uint32_t pdl;
        FeatureEnum feature;
        std::int32_t value;
    };
    const Row rows[] = {
        {6, 2, feature::sides, value::oneSided},
        {6, 2, feature::pageRotation, value::rotate0},
        {16, 2, feature::pageRotation, FeatureValue::unspecified},
        {6, 2, feature::mediaColor, value::mediaWhite},
        {28, 2, feature::mediaColor, FeatureValue::unspecified},
        {4, 2, feature::impositionTemplate, value::impositionNone},
        {43, 1, feature::opiImageInsertion, value::opiInsert},
        {43, 2, feature::opiImageInsertion, FeatureValue::unspecified},
    };
    for (const Row& row : rows) {
        auto made = printer(row.model, row.pdl, 1);
        EXPECT_EQ(made.getDefaults().getSettings().getFeatureValue(_FI(row.feature)).getValue(),
                  row.value)
            << "model " << row.model << " feature " << row.feature;
    }
}

TEST_F(PrinterTest, UnknownModelsFailAtFirstUseAndUnknownLanguagesOnlyByName) {
    auto unknown = printer(52, 2, 1);
    EXPECT_EQ(raised<IndexOutOfBoundsException>([&] { (void)unknown.getModel(); }),
              "PrinterModel::getModelInfoIndex(): Could not find the model enumeration value (52) "
              "in the table of printer model information.\r\n");
    NonDriverBasedPrinter odd(1, 9, 1, CXString(), false);
    EXPECT_NO_THROW((void)odd.getDefaults());
    EXPECT_EQ(raised<IndexOutOfBoundsException>([&] { (void)odd.getUserPreferences(); }),
              "PrinterModel::getDriverInfoIndex(): Could not find the printer driver by model 1 "
              "and PDL 9 in the table of printer driver information.\r\n");
}

TEST_F(PrinterTest, TheUserGoesIntoAStateBlob) {
    const NonDriverBasedPrinter made(1, 2, 1, CXString(u"of my own"), false);
    made.getUserPreferences()->setBooleanPreference(u"JOB_NAME_PREFERENCE", false);
    PersistentSettings state;
    state.setUserContext({CXString(u"somebody"), true, false, false});
    const bool isKnown = made.updateUserContext(state);
    EXPECT_EQ(isKnown, !User::getLogonName().isEmpty());
    if (isKnown) {
        EXPECT_EQ(state.getUserContext().logonName, User::getLogonName());
        EXPECT_FALSE(state.getUserContext().useDocumentName);
        EXPECT_TRUE(state.getUserContext().useLogonName);
    }
}

} // namespace
} // namespace zent::test
