#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

struct Applied {
    ZentResult result;
    ZentBool problems = 7;
    ZentBool usable = 7;
};

Applied apply(const Session& session, std::uint32_t mode, const ZentChar* title = ZT("")) {
    Applied applied{};
    applied.result = fnApplyPrinterCapabilitiesToSettings(session.handle(), mode, nullptr, title,
                                                          &applied.problems, &applied.usable);
    return applied;
}

/// The user, where there is one; elsewhere it is the same without.
constexpr bool refuses = true;

std::string colorOf(const Session& session) {
    return stringOf(session, session.ticket(), "media-color");
}

/// The printer has red sheets, but takes neither own names of media types nor such a long name.
void askTooMuch(const Session& session) {
    EXPECT_EQ(session.setString("media-type", "handmade"), ZENT_OK);
    EXPECT_EQ(session.setString("job-name", std::string(300, 'x').c_str()), ZENT_OK);
    EXPECT_EQ(session.setString("media-color", "red"), ZENT_OK);
}

TEST(ApplyCallsTest, TheModeDecidesWhatBecomesOfATicket) {
    struct Row {
        std::uint32_t mode;
        ZentResult result;
        ZentBool usable;
        bool isRepaired;
        std::size_t boxes;
    };
    const Row rows[] = {
        {0, ZENT_ERR_APPLY_MODE, 7, false, 0},
        {1, ZENT_OK, 1, true, 0},
        {2, ZENT_OK, 1, false, 0}, // nobody refused
        {3, ZENT_OK, 0, false, 1}, // who can't be asked, or refuses
        {4, ZENT_OK, 0, false, 1}, // the policy's answer
        {5, ZENT_OK, 0, false, 1},
        {6, ZENT_ERR_APPLY_MODE, 7, false, 0},
    };
    MessageBoxes boxes(refuses);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.mode);
        const Session session;
        askTooMuch(session);
        const std::uint32_t waiting = session.exportSize();
        const Applied applied = apply(session, row.mode, ZT("My printer"));
        EXPECT_EQ(applied.result, row.result);
        EXPECT_EQ(applied.problems, row.result == ZENT_OK ? 1 : 7);
        EXPECT_EQ(applied.usable, row.usable);
        EXPECT_EQ(stringOf(session, session.ticket(), "media-type"),
                  row.isRepaired ? "stationery" : "handmade");
        EXPECT_EQ(colorOf(session), "red");
        EXPECT_EQ(session.exportSize() == waiting, !row.isRepaired);
        const std::vector<MessageBox> shown = boxes.take();
        EXPECT_EQ(shown.size(), row.boxes);
        for (const MessageBox& box : shown) {
            EXPECT_EQ(box.title, "My printer");
            EXPECT_THAT(box.text, testing::HasSubstr("Media type"));
        }
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

TEST(ApplyCallsTest, AnImportIsRepairedKeptOrRefused) {
    const Session source;
    askTooMuch(source);
    const std::string tickets[] = {source.exported(ZENT_FORMAT_XML),
                                   source.exported(ZENT_FORMAT_STATE)};
    const MessageBoxes boxes(refuses);
    for (const auto& [mode, isApplied, mediaType] : Rows<std::uint32_t, ZentBool, const char*>{
             {1, 1, "stationery"},
             {2, 1, "handmade"},
             {3, 0, "none"},
             {4, 0, "none"},
             {5, 0, "none"},
         }) {
        for (const std::uint32_t format : {ZENT_FORMAT_XML, ZENT_FORMAT_STATE}) {
            SCOPED_TRACE(std::to_string(mode) + " " + std::to_string(format));
            const std::string& data = tickets[format - 1];
            const Session session;
            ZentBool problems = 7;
            ZentBool applied = 7;
            EXPECT_EQ(fnImportJobTicket(session.handle(), data.data(),
                                        static_cast<std::uint32_t>(data.size()), format, mode,
                                        nullptr, ZT(""), &problems, &applied),
                      ZENT_OK);
            EXPECT_EQ(problems, 1);
            EXPECT_EQ(applied, isApplied);
            EXPECT_EQ(stringOf(session, session.ticket(), "media-type"), mediaType);
        }
    }
}

} // namespace
} // namespace zent::test
