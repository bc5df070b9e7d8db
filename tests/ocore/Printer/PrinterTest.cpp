#include "ocore/Printer/NonDriverBasedPrinter.h"

#include <gtest/gtest.h>

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/User.h"
#include "resources/UseResourceLibrary.h"
#include "support/Rows.h"
#include "support/ScratchPreferences.h"

namespace zent::test {
namespace {

class PrinterTest : public testing::Test {
protected:
    PrinterTest() { useResourceLibrary(); }

private:
    ScratchPreferences m_preferences;
};

// What a new session holds is tested by the exported calls; these defaults depend on the language.
TEST_F(PrinterTest, DefaultsDifferByLanguage) {
    for (const auto& [pdl, opi] : Rows<std::uint32_t, std::int32_t>{
             {pageLanguage::postScript, value::opiInsert},
             {pageLanguage::monochromePcl, FeatureValue::unspecified}}) {
        NonDriverBasedPrinter printer(43, pdl, 1, CXString(), true);
        EXPECT_EQ(printer.getDefaults()
                      .getSettings()
                      .getFeatureValue(_FI(feature::opiImageInsertion))
                      .getValue(),
                  opi);
    }
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
