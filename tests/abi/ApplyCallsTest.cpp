#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

struct Applied {
    ZentResult result = 0;
    ZentBool problems = 7;
    ZentBool usable = 7;
};

Applied apply(const Session& session, std::uint32_t mode, const ZentChar* title = ZT("")) {
    Applied applied;
    applied.result = fnApplyPrinterCapabilitiesToSettings(session.handle(), mode, nullptr, title,
                                                          &applied.problems, &applied.usable);
    return applied;
}

std::string mediaTypeOf(const Session& session) {
    return stringOf(session, session.ticket(), "media-type");
}

/// The printer has red sheets, but takes neither own names of media types nor such a long name.
void askTooMuch(const Session& session) {
    EXPECT_EQ(session.setString("media-type", "handmade"), ZENT_OK);
    EXPECT_EQ(session.setString("job-name", std::string(300, 'x').c_str()), ZENT_OK);
    EXPECT_EQ(session.setString("media-color", "red"), ZENT_OK);
}

TEST(ApplyCallsTest, TheModeDecidesWhatBecomesOfATicket) {
    const Session source;
    askTooMuch(source);
    const std::string tickets[] = {source.exported(ZENT_FORMAT_XML),
                                   source.exported(ZENT_FORMAT_STATE)};
    MessageBoxes boxes;
    for (const auto& [mode, result, usable, mediaType, shown] :
         Rows<std::uint32_t, ZentResult, ZentBool, const char*, std::size_t>{
             {0, ZENT_ERR_APPLY_MODE, 7, "handmade", 0},
             {1, ZENT_OK, 1, "stationery", 0},
             {2, ZENT_OK, 1, "handmade", 0}, // nobody refused
             {3, ZENT_OK, 0, "handmade", 1}, // who can't be asked refuses
             {4, ZENT_OK, 0, "handmade", 1}, // the policy's answer
             {5, ZENT_OK, 0, "handmade", 1},
             {6, ZENT_ERR_APPLY_MODE, 7, "handmade", 0},
         }) {
        SCOPED_TRACE(mode);
        const Session session;
        askTooMuch(session);
        const std::uint32_t waiting = session.exportSize();
        const Applied applied = apply(session, mode, ZT("My printer"));
        EXPECT_EQ(applied.result, result);
        EXPECT_EQ(applied.problems, result == ZENT_OK ? 1 : 7);
        EXPECT_EQ(applied.usable, usable);
        EXPECT_EQ(mediaTypeOf(session), mediaType);
        EXPECT_EQ(stringOf(session, session.ticket(), "media-color"), "red");
        EXPECT_EQ(session.exportSize() == waiting, mode != 1);
        const std::vector<MessageBox> seen = boxes.take();
        EXPECT_EQ(seen.size(), shown);
        for (const MessageBox& box : seen) {
            EXPECT_EQ(box.title, "My printer");
            EXPECT_THAT(box.text, testing::HasSubstr("Media type"));
        }
        // An import of such a ticket is repaired, kept or refused.
        for (const std::uint32_t format : {ZENT_FORMAT_XML, ZENT_FORMAT_STATE}) {
            const Session other;
            const Imported imported = other.tryImport(tickets[format - 1], format, mode);
            EXPECT_EQ(imported.result, result);
            EXPECT_EQ(imported.problems, applied.problems);
            EXPECT_EQ(imported.applied, result == ZENT_OK ? usable : 0);
            EXPECT_EQ(mediaTypeOf(other), imported.applied != 0 ? mediaType : "none");
        }
        boxes.take();
    }
}

TEST(ApplyCallsTest, ATicketWithoutProblemsStaysAsItIs) {
    const Session session;
    ASSERT_EQ(session.setNumber("copies", 3), ZENT_OK);
    MessageBoxes boxes;
    for (const std::uint32_t mode : {1U, 2U, 3U, 4U, 5U}) {
        const Applied applied = apply(session, mode);
        EXPECT_EQ(applied.result, ZENT_OK);
        EXPECT_EQ(applied.problems, 0);
        EXPECT_EQ(applied.usable, 1);
    }
    EXPECT_TRUE(boxes.take().empty());
    EXPECT_EQ(numberOf(session, session.ticket(), "copies"), "3");
    // A title is looked at where one is needed.
    EXPECT_EQ(apply(session, 1, nullptr).result, ZENT_OK);
    EXPECT_EQ(apply(session, 3, nullptr).result, ZENT_ERR_UNKNOWN);
}

} // namespace
} // namespace zent::test
