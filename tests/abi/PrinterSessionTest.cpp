#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

constexpr std::uint32_t state = ZENT_FORMAT_STATE;

struct Opening {
    std::uint32_t model;
    std::uint32_t pdl;
    std::uint32_t form = ZENT_INSTRUCTIONS_XML;
    const ZentChar* preferences = nullptr;
    ZentBool generic = 0;
    ZentBool silent = 1;
};

ZentResult open(const Opening& opening, ZentSessionType* session) {
    return fnOpenSession(27, opening.model, opening.pdl, opening.form, opening.silent,
                         opening.preferences, opening.generic, session);
}

/// A ticket's document without the values that depend on the user and the locale.
std::string importedFrom(const std::string& blob, std::uint32_t model) {
    const Session session(true, model);
    session.import(blob, state);
    return session.exported();
}

TEST(PrinterSessionTest, PrintersThatNobodyKnowsAreRefused) {
    const ScratchUser scratch;
    MessageBoxes boxes;
    int anything = 0;
    auto* const before = reinterpret_cast<ZentSessionType>(&anything);
    for (const auto& [name, opening, result] : Rows<const char*, Opening, ZentResult>{
             {"first model", {1, 2}, ZENT_OK},
             {"last model", {51, 2}, ZENT_OK},
             {"no model", {0, 2}, ZENT_ERR_INTERNAL_INDEX},
             {"unknown model", {52, 2, 1, ZT("mine"), 1}, ZENT_ERR_INTERNAL_INDEX},
             {"unknown model, loud", {52, 2, 1, nullptr, 0, 0}, ZENT_ERR_INTERNAL_INDEX},
             {"any form", {1, 2, 99}, ZENT_OK},
             // The language is looked at where the driver's name is needed, for the preferences.
             {"language that the model lacks", {1, 3}, ZENT_ERR_INTERNAL_INDEX},
             {"such with a set of a name", {1, 3, 1, ZT("mine")}, ZENT_OK},
             {"such with the generic set", {1, 3, 1, ZT(""), 1}, ZENT_OK},
         }) {
        SCOPED_TRACE(name);
        ZentSessionType session = before;
        EXPECT_EQ(open(opening, &session), result);
        EXPECT_EQ(session == before, result != ZENT_OK);
        EXPECT_EQ(boxes.take().size(), opening.silent != 0 ? 0U : 1U);
        if (result == ZENT_OK) {
            EXPECT_EQ(fnCloseSession(&session), ZENT_OK);
        }
    }
}

TEST(PrinterSessionTest, ANewTicketHoldsThePrintersDefaults) {
    const Session reader; // takes any settings
    ZentSessionType fresh = nullptr;
    ASSERT_EQ(open({28, 2, 1, nullptr, 1}, &fresh), ZENT_OK);
    TarvoJtSettingsType t = nullptr;
    ASSERT_EQ(fnGetTarvoJtSettingsFromSession(fresh, &t), ZENT_OK);
    EXPECT_EQ(numberOf(reader, t, "copies"), "1");
    EXPECT_EQ(stringOf(reader, t, "media-type"), "stationery");
    EXPECT_EQ(stringOf(reader, t, "media-color"), "none"); // a printer without media colours
    EXPECT_NE(stringOf(reader, t, "requesting-user-name"), "none");
    EXPECT_NE(sizeOf(reader, t), "none");
    EXPECT_EQ(fnCloseSession(&fresh), ZENT_OK);
}

TEST(PrinterSessionTest, ATicketTravelsAsABlob) {
    const Session session;
    const std::string empty = session.exported(state);
    EXPECT_EQ(importedFrom(empty, 1), Session().exported());
    session.setNumber("copies", 12);
    session.setString("job-name", "*A & \"B\" \t");
    session.setString("media-type", "handmade");
    fnSetRangeValues(session.handle(), session.ticket(), ZT("page-ranges"), 1, 5, 0);
    const std::string blob = session.exported(state);
    EXPECT_NE(blob, empty);
    EXPECT_EQ(blob.substr(0, 8), std::string("\x08\0\0\0\x01\0\x08\x03", 8));
    EXPECT_EQ(importedFrom(blob, 40), session.exported());

    // The two formats share one waiting result: the last one asked for stays.
    session.exportSize(ZENT_FORMAT_XML);
    EXPECT_EQ(session.exported(state), blob);
    session.setNumber("copies", 13);
    EXPECT_NE(session.exported(state), blob);
    // An import replaces the ticket for both.
    session.import(blob, state);
    EXPECT_EQ(numberOf(session, session.ticket(), "copies"), "12");
    EXPECT_EQ(importedFrom(session.exported(state), 1), session.exported());
}

TEST(PrinterSessionTest, TheUserInABlobIsRenewed) {
    const ScratchUser scratch;
    const Session session;
    const ZentSessionType s = session.handle();
    session.setNumber("copies", 12);
    const std::string before = session.exported(state);
    EXPECT_EQ(fnSetPreferenceBoolValue(s, ZT("USE_LOGON_NAME_PREFERENCE"), 0), ZENT_OK);
    session.setNumber("copies", 13); // the session's own ticket plays no part

    const auto renew = [&](const std::string& blob, char* buffer, std::uint32_t* size) {
        return fnUpdateUserContextInformation(
            s, blob.data(), static_cast<std::uint32_t>(blob.size()), buffer, size);
    };
    std::uint32_t size = 0;
    EXPECT_EQ(renew(before, nullptr, &size), ZENT_OK);
    std::string after(size, '?');
    size -= 1;
    EXPECT_EQ(renew(before, after.data(), &size), ZENT_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(after, std::string(size, '?'));
    EXPECT_EQ(renew(before, after.data(), &size), ZENT_OK);
    EXPECT_NE(after, before);
    EXPECT_EQ(importedFrom(after, 1), importedFrom(before, 1));
    EXPECT_EQ(numberOf(session, session.ticket(), "copies"), "13");
    EXPECT_EQ(renew("no blob at all", nullptr, &size), ZENT_ERR_STATE_FORMAT);
    EXPECT_EQ(renew("", nullptr, &size), ZENT_ERR_STATE_FORMAT);
}

TEST(PrinterSessionTest, ABadBlobLeavesTheSessionAlone) {
    const Session session;
    session.setNumber("copies", 4);
    const std::string good = session.exported(state);
    std::string damaged = good;
    damaged[good.size() / 2] = static_cast<char>(damaged[good.size() / 2] ^ 0x55);
    std::string newer = good;
    newer[4] = 2;
    for (const auto& [name, blob, result] : Rows<const char*, std::string, ZentResult>{
             {"nothing", "", ZENT_ERR_STATE_FORMAT},
             {"half a header", good.substr(0, 7), ZENT_ERR_STATE_FORMAT},
             {"a header alone", good.substr(0, 8), ZENT_ERR_COMPRESSION},
             {"of a version to come", newer, ZENT_ERR_STATE_FORMAT},
             {"cut", good.substr(0, good.size() - 1), ZENT_ERR_COMPRESSION},
             {"damaged", damaged, ZENT_ERR_COMPRESSION},
             {"a document", "<?xml version=\"1.0\"?><ordo/>", ZENT_ERR_STATE_FORMAT},
         }) {
        SCOPED_TRACE(name);
        const Imported imported = session.tryImport(blob, state);
        EXPECT_EQ(imported.result, result);
        EXPECT_EQ(imported.applied, 7);
        EXPECT_EQ(numberOf(session, session.ticket(), "copies"), "4");
        EXPECT_EQ(session.exported(state), good);
    }
}

TEST(PrinterSessionTest, ASizeIsTurnedAsThePrinterTakesIt) {
    for (const auto& [model, shortEdge, longEdge, size] :
         Rows<std::uint32_t, std::int32_t, std::int32_t, const char*>{
             {18, 29700, 42000, "42000x29700"}, // up to 47000 wide
             {41, 29700, 42000, "29700x42000"}, // up to 32000 wide
             {33, 21000, 29700, "21000x29700"},
             {33, 29700, 42000, "42000x29700"}, // neither way: as it stands
         }) {
        const Session session(true, model);
        EXPECT_EQ(fnSetStockSizeValues(session.handle(), session.ticket(), shortEdge, longEdge),
                  ZENT_OK);
        EXPECT_EQ(sizeOf(session, session.ticket()), size) << model;
    }
}

} // namespace
} // namespace zent::test
