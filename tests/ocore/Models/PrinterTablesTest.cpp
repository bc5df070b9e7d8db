#include "ocore/Models/PrinterTables.h"

#include <set>

#include "ocore/Models/PrinterModel.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(PrinterTablesTest, EachFamilyModelAndDriverStandsOnceAndRefersToOthers) {
    useResourceLibrary();
    for (std::uint32_t i = 0; i < getFamilyTable().size(); ++i) {
        const FamilyInfo& family = getFamilyTable()[i];
        SCOPED_TRACE(testing::Message() << "family " << family.family);
        EXPECT_EQ(family.family, i + 1);
        EXPECT_EQ(PrinterModel::getFamilyInfoIndex(family.family), i);
        EXPECT_TRUE(std::ranges::any_of(
            getModelTable(), [&](const ModelInfo& model) { return model.family == i + 1; }));
    }
    for (std::uint32_t i = 0; i < getModelTable().size(); ++i) {
        const ModelInfo& info = getModelTable()[i];
        SCOPED_TRACE(testing::Message() << "model " << info.model);
        EXPECT_EQ(info.model, i + 1);
        EXPECT_EQ(PrinterModel::getModelInfoIndex(info.model), i);
        const PrinterModel model(info.model, pageLanguage::monochromePcl);
        EXPECT_EQ(model.getDisplayName(), ResourceLibrary().getString(info.displayNameStringID));
        EXPECT_FALSE(model.getDisplayName().isEmpty());
    }
    std::set<std::u16string_view> names;
    for (std::uint32_t i = 0; i < getDriverTable().size(); ++i) {
        const DriverInfo& driver = getDriverTable()[i];
        const CXString name(driver.driverName);
        SCOPED_TRACE(name.toNarrow());
        EXPECT_TRUE(names.insert(driver.driverName).second);
        // No pair of model and language stands twice.
        EXPECT_EQ(PrinterModel::getDriverInfoIndex(driver.model, driver.pdl), i);
        EXPECT_EQ(PrinterModel(driver.model, driver.pdl).getDriverName(), name);
    }
}

} // namespace
} // namespace zent::test
