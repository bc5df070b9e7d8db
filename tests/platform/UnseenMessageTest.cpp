#include "platform/UnseenMessage.h"

#include "support/Testing.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(UnseenMessage, IsPrintedAndRefusesWhatItOffers) {
    const std::string rule(72, '-');
    const std::string noDisplay = "\nThere is no display to ask on: taken as ";
    for (const auto& [flags, icon, answer, taken] :
         Rows<std::uint32_t, const char*, std::int32_t, const char*>{
             {0, "message", 1, ""},                 // OK
             {16 + 8192, "error", 1, ""},           // whatever else is set
             {48 + 1, "warning", 2, "Cancel"},      // OK, Cancel
             {32 + 2, "question", 3, "Abort"},      // Abort, Retry, Ignore
             {32 + 3, "question", 2, "Cancel"},     // Yes, No, Cancel
             {32 + 4 + 0x100, "question", 7, "No"}, // Yes, No
             {64 + 5, "information", 2, "Cancel"},  // Retry, Cancel
         }) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(printUnseenMessage(u"One\r\ntwo\x1B[2J\x7F", u"Title", flags), answer);
        std::string shown = testing::internal::GetCapturedStderr();
        std::erase(shown, '\r'); // as Windows ends its lines
        EXPECT_EQ(shown, rule + "\nTitle (" + icon + ")\n\nOne\ntwo [2J \n" +
                             (*taken != 0 ? noDisplay + taken + ".\n" : "") + rule + "\n");
    }
}

} // namespace
} // namespace zent::test
