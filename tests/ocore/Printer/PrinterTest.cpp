#include "ocore/Printer/NonDriverBasedPrinter.h"

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/Resources/Stream.h"
#include "ocore/User/User.h"
#include "support/LibraryTesting.h"
#include "zent27.h"

namespace zent::test {
namespace {

TEST(PrinterTest, TheUserGoesIntoAStateBlob) {
    useResourceLibrary();
    const ScratchUser preferences;
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

TEST(PrinterTest, TheDocumentsNameIsCutBetweenCharacters) {
    useResourceLibrary();
    NonDriverBasedPrinter made(6, 2, ZENT_INSTRUCTIONS_STREAM, CXString(), true);
    PersistentSettings state;
    state.setUserContext({CXString(), true, false, false});
    // The limit would leave the first of the last character's two units.
    const std::string name(254, 'n');
    ByteBuffer written;
    BufferStream stream(&written);
    made.generateInstructions(state, stream, CXString(name.c_str()) + u"\U0001F5A8");
    const std::string text(reinterpret_cast<const char*>(written.data()), written.size());
    EXPECT_NE(text.find("%TRVtitle: " + name + "\n"), std::string::npos) << text;
}

} // namespace
} // namespace zent::test
