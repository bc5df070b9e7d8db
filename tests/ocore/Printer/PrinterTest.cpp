#include "ocore/Printer/NonDriverBasedPrinter.h"

#include <gtest/gtest.h>

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/User.h"
#include "resources/UseResourceLibrary.h"
#include "support/ScratchPreferences.h"

namespace zent::test {
namespace {

TEST(PrinterTest, TheUserGoesIntoAStateBlob) {
    useResourceLibrary();
    const ScratchPreferences preferences;
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
