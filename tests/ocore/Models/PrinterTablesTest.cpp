#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/Models/PrinterModel.h"
#include "resources/UseResourceLibrary.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

std::uint32_t unsignedNumber(const ExpectedRow& row, const std::string& column) {
    return static_cast<std::uint32_t>(row.number(column));
}

/// The number of some model of a family.
std::uint32_t modelOf(std::uint32_t family) {
    for (const ModelInfo& model : getModelTable()) {
        if (model.family == family) {
            return model.model;
        }
    }
    ADD_FAILURE() << "family " << family << " has no model";
    return 1;
}

TEST(PrinterTablesTest, FamiliesAreThoseOfTheTable) {
    const std::vector<ExpectedRow> rows = readExpectedTable("families.tsv");
    ASSERT_EQ(getFamilyTable().size(), rows.size());
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        const ExpectedRow& row = rows[i];
        SCOPED_TRACE("family " + row.text("family"));
        EXPECT_EQ(PrinterModel::getFamilyInfoIndex(unsignedNumber(row, "family")), i);
        const PrinterModel model(modelOf(unsignedNumber(row, "family")), 2);
        const AjtPrinterTraits& traits = model.getTraits();
        row.expect({{"capabilityResource1", model.getCapabilityResource(1)},
                    {"capabilityResource2", model.getCapabilityResource(2)},
                    {"takesOrdo", model.takesOrdo()},
                    {"capability1a", model.isSeparateCoversCapable()},
                    {"capability1b", model.isInsertMultipleMediaCapable()},
                    {"capability1c", model.isTiffPrintSaveCapable()},
                    {"featureDefault", model.getFeatureDefault()},
                    {"mediaTextCapability", model.getMediaTextCapability()},
                    {"maxPageNumber", model.getMaxPageNumber()},
                    {"jobNameLimit", model.getJobNameLimit()},
                    {"jobNameRule", model.getJobNameRule()},
                    {"accountRangeUpper", model.getAccountRangeUpper()},
                    {"accountRangeLower", model.getAccountRangeLower()},
                    {"accountRule", model.getAccountRule()},
                    {"requestingUserLimit", model.getRequestingUserLimit()},
                    {"recipientLimit", model.getRecipientLimit()},
                    {"sheetMessageLimit", model.getSheetMessageLimit()},
                    {"operatorMessageLimit", model.getOperatorMessageLimit()},
                    {"phoneNumberLimit", model.getPhoneNumberLimit()},
                    {"mediaColorLimit", model.getMediaColorLimit()},
                    {"imageShiftRule", model.getImageShiftRule()},
                    {"signatureSizeSwap", traits.signatureSizeSwap},
                    {"unixDestination", traits.unixDestination},
                    {"mediaWeightDefault", traits.mediaWeightDefault},
                    {"explicitFinishingNone", traits.explicitFinishingNone},
                    {"fullPageExceptions", traits.fullPageExceptions}});
        EXPECT_EQ(traits.mediaSizeLimits, (AjtPrinterTraits::MediaSizeLimits{
                                              row.number("xMinimum"), row.number("xMaximum"),
                                              row.number("yMinimum"), row.number("yMaximum")}));
    }
    // Only the second form has a resource of its own.
    const PrinterModel model(1, 2);
    for (const std::uint32_t form : {0U, 3U, 4U}) {
        EXPECT_EQ(model.getCapabilityResource(form), model.getCapabilityResource(1));
    }
}

TEST(PrinterTablesTest, ModelsAreThoseOfTheTable) {
    useResourceLibrary();
    const std::vector<ExpectedRow> rows = readExpectedTable("models.tsv");
    ASSERT_EQ(getModelTable().size(), rows.size());
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        const std::uint32_t number = unsignedNumber(rows[i], "model");
        SCOPED_TRACE(number);
        EXPECT_EQ(PrinterModel::getModelInfoIndex(number), i);
        const ModelInfo& info = getModelTable()[i];
        rows[i].expect({{"stringId", info.displayNameStringID},
                        {"family", info.family},
                        {"name", PrinterModel(number, 2).getDisplayName()}});
    }
}

TEST(PrinterTablesTest, DriversAreThoseOfTheTable) {
    const std::vector<ExpectedRow> rows = readExpectedTable("drivers.tsv");
    ASSERT_EQ(getDriverTable().size(), rows.size());
    for (const ExpectedRow& row : rows) {
        const CXString name(row.wide("name"));
        SCOPED_TRACE(row.text("name"));
        const std::uint32_t index = PrinterModel::getDriverInfoIndex(name);
        const DriverInfo& driver = getDriverTable()[index];
        const PrinterModel model = PrinterModel::fromDriverName(name);
        row.expect({{"pdl", driver.pdl}, {"model", driver.model}});
        row.expect({{"pdl", model.getPdl()}, {"model", model.getModel()}});
        // Either way finds the one row: no name and no pair of model and language stands twice.
        EXPECT_EQ(PrinterModel::getDriverInfoIndex(driver.model, driver.pdl), index);
        EXPECT_EQ(model.getDriverName(), name);
    }
}

TEST(PrinterTablesTest, LookupsThatFailSayWhatWasLookedFor) {
    using E = IndexOutOfBoundsException;
    EXPECT_EQ(raised<E>([] { PrinterModel(52, 2); }),
              "PrinterModel::getModelInfoIndex(): Could not find the model enumeration value (52) "
              "in the table of printer model information.\r\n");
    EXPECT_EQ(raised<E>([] { PrinterModel::getFamilyInfoIndex(0); }),
              "PrinterModel::getFamilyInfoIndex(): Could not find the family enumeration value (0) "
              "in the table of printer family information.\r\n");
    EXPECT_EQ(raised<E>([] { PrinterModel::fromDriverName(u"tarvo lumaset 510 pcl5e"); }),
              "PrinterModel::getDriverInfoIndex(): Could not find the printer driver name 'tarvo "
              "lumaset 510 pcl5e' in the table of printer driver information.\r\n");
    // A language that a model doesn't have goes unnoticed until its driver's name is wanted.
    const PrinterModel model(32, pageLanguage::postScript);
    EXPECT_EQ(raised<E>([&] { model.getDriverName(); }),
              "PrinterModel::getDriverInfoIndex(): Could not find the printer driver by model 32 "
              "and PDL 1 in the table of printer driver information.\r\n");
}

} // namespace
} // namespace zent::test
