#include "ocore/Printer/NonDriverBasedPrinter.h"

#include "ocore/Compress/PersistentSettings.h"
#include "ocore/Resources/Stream.h"
#include "support/LibraryTesting.h"
#include "zent27.h"

namespace zent::test {
namespace {

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
