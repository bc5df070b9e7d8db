#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Instructions for a printer that takes a form, after the user's preferences were set.
class InstructionCallsTest : public testing::Test {
protected:
    void open(std::uint32_t model, std::uint32_t form) {
        ASSERT_EQ(fnOpenSession(27, model, 2, form, 1, nullptr, 1, &s), ZENT_OK);
        ASSERT_EQ(fnGetTarvoJtSettingsFromSession(s, &t), ZENT_OK);
        ASSERT_EQ(fnUnspecifyAllFeatures(s, t), ZENT_OK);
        ASSERT_EQ(fnSetStringValue(s, t, ZT("job-name"), ZT("Mine"), 0), ZENT_OK);
    }
    ~InstructionCallsTest() override {
        if (s != nullptr) {
            EXPECT_EQ(fnCloseSession(&s), ZENT_OK);
        }
    }
    std::uint32_t sizeFor(const char* document) const {
        std::uint32_t size = 0;
        EXPECT_EQ(fnGetPrintInstructions(s, nullptr, &size, document), ZENT_OK);
        return size;
    }
    std::string instructionsFor(const char* document) const {
        std::uint32_t size = sizeFor(document);
        std::string bytes(size, '?');
        EXPECT_EQ(fnGetPrintInstructions(s, bytes.data(), &size, document), ZENT_OK);
        return bytes;
    }

    const ScratchUser scratch;
    ZentSessionType s = nullptr;
    TarvoJtSettingsType t = nullptr;
};

TEST_F(InstructionCallsTest, TheFormDecidesWhatComes) {
    for (const auto& [model, form, isXml] :
         Rows<std::uint32_t, std::uint32_t, bool>{{1, 1, true},
                                                  {1, 2, false},
                                                  {1, 3, false}, // family 7 takes no XML
                                                  {6, 3, true},
                                                  {6, 9, false}}) {
        SCOPED_TRACE(std::to_string(model) + " " + std::to_string(form));
        open(model, form);
        const std::string instructions = instructionsFor("");
        EXPECT_EQ(instructions.starts_with("<?xml"), isXml);
        EXPECT_EQ(instructions.starts_with("%TRVbegin: 001.0300\n"), !isXml);
        EXPECT_EQ(instructions.ends_with("%TRVend\n"), !isXml);
        EXPECT_EQ(fnCloseSession(&s), ZENT_OK);
    }
}

TEST_F(InstructionCallsTest, TheUserContextGoesIn) {
    open(6, 2);
    const std::string named = instructionsFor("Letter.pdf");
    EXPECT_THAT(named, HasSubstr("%TRVtitle: Letter.pdf\n"));
    EXPECT_THAT(named, HasSubstr("%TRVsenderName: "));
    EXPECT_THAT(named, HasSubstr("%TRVrecipientName: "));
    EXPECT_THAT(instructionsFor(""), HasSubstr("%TRVtitle: Mine\n"));
    EXPECT_EQ(instructionsFor(nullptr), instructionsFor(""));
    const std::string longName(400, 'x');
    EXPECT_THAT(instructionsFor(longName.c_str()),
                HasSubstr("%TRVtitle: " + longName.substr(0, 255) + "\n"));
    // The session's own ticket stays as it is.
    const Session reader;
    EXPECT_EQ(stringOf(reader, t, "job-name"), "Mine");
    EXPECT_EQ(stringOf(reader, t, "requesting-user-name"), "none");

    // What the user prefers comes in with the next renewal of the state, as by an export.
    for (const char* name : {"JOB_NAME_PREFERENCE", "USE_LOGON_NAME_PREFERENCE",
                             "USE_LOGON_NAME_PREFERENCE_RECIPIENT"}) {
        EXPECT_EQ(fnSetPreferenceBoolValue(s, wide(name).c_str(), 0), ZENT_OK);
    }
    std::uint32_t size = 0;
    EXPECT_EQ(fnExportJobTicket(s, nullptr, &size, ZENT_FORMAT_STATE), ZENT_OK);
    const std::string unnamed = instructionsFor("Letter.pdf");
    EXPECT_THAT(unnamed, HasSubstr("%TRVtitle: Mine\n"));
    EXPECT_THAT(unnamed, HasSubstr("%TRVsenderName: Unknown user\n"));
    EXPECT_THAT(unnamed, Not(HasSubstr("%TRVrecipientName")));
}

TEST_F(InstructionCallsTest, WhatIsNotFetchedStaysInFront) {
    open(6, 2);
    const std::string first = instructionsFor("a");
    const std::string second = instructionsFor("b");
    EXPECT_EQ(sizeFor("a"), first.size());
    EXPECT_EQ(sizeFor("a"), first.size()); // not again
    std::uint32_t size = static_cast<std::uint32_t>(first.size()) - 1;
    std::string buffer(first.size(), '?');
    EXPECT_EQ(fnGetPrintInstructions(s, buffer.data(), &size, "a"), ZENT_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(size, first.size());
    EXPECT_EQ(buffer, std::string(first.size(), '?'));
    EXPECT_EQ(instructionsFor("b"), first + second);
    EXPECT_EQ(instructionsFor("b"), second);
    // A change drops what waits.
    sizeFor("a");
    EXPECT_EQ(fnSetNumberValue(s, t, ZT("copies"), 33, 0), ZENT_OK);
    EXPECT_THAT(instructionsFor("a"), HasSubstr("%TRVcopyCount: 33\n"));
}

TEST(DialogCallsTest, DialogsThatThereAreNoneOfRefuseToStart) {
    const Session session(false);
    MessageBoxes boxes;
    for (const std::uint32_t kind : {0U, 5U}) {
        EXPECT_EQ(fnInvokeTarvoJobTicketDialog(session.handle(), kind, nullptr, 0),
                  ZENT_ERR_DIALOG_KIND);
    }
    for (const std::uint32_t kind : {1U, 2U, 3U}) {
        EXPECT_EQ(fnInvokeTarvoJobTicketDialog(session.handle(), kind, nullptr, 0),
                  ZENT_ERR_DIALOG_START);
    }
    EXPECT_TRUE(boxes.take().empty());
}

} // namespace
} // namespace zent::test
