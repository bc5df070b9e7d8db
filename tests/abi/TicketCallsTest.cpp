#include <functional>

#include <gmock/gmock.h>

#include "abi/MessageBoxes.h"
#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

/// A document around the content of the template category.
std::string document(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
           "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\">\r\n"
           "<ordo version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\">"
           "<job-template-attributes>" +
           content + "</job-template-attributes></ordo>";
}

std::string copiesDocument(int copies) {
    return document("<copies syntax=\"integer\">" + std::to_string(copies) + "</copies>");
}

std::string copiesIn(const Session& session) {
    return numberOf(session, session.ticket(), "copies");
}

TEST(TicketCallsTest, ATicketIsWrittenAsPrintersExpectIt) {
    const Session session;
    const ZentSessionType s = session.handle();
    session.setString("job-name", "Report");
    session.setNumber("copies", 2);
    fnSetRangeValues(s, session.ticket(), ZT("page-ranges"), 1, 5, 0);
    fnSetStockSizeValues(s, session.ticket(), 29700, 21000);
    const std::string expected = readTestFile("golden/ordo/report.xml");
    EXPECT_EQ(session.exported(), expected);

    const Session other;
    other.import(expected);
    EXPECT_EQ(other.exported(), expected);
    EXPECT_EQ(sizeOf(other, other.ticket()), "21000x29700");
}

TEST(TicketCallsTest, AnImportReplacesTheTicketAndNormalizesIt) {
    const Session session;
    session.setString("job-name", "old");
    session.import(document("<sides syntax=\"keyword\">one-sided</sides>"
                            "<x-image-shift syntax=\"integer\">500</x-image-shift>"
                            "<page-overrides syntax=\"1setOf\"><value syntax=\"collection\">"
                            "<copies syntax=\"integer\">2</copies></value></page-overrides>"));
    EXPECT_EQ(stringOf(session, session.ticket(), "job-name"), "none");
    EXPECT_EQ(numberOf(session, session.ticket(), "x-image-shift"), "none");
    EXPECT_EQ(numberOf(session, session.ticket(), "x-side1-image-shift"), "500");
    EXPECT_EQ(numberOf(session, session.ticket(), "x-side2-image-shift"), "none");
    TarvoJtSettingsType page = nullptr;
    fnCreateTarvoJtSettingsFromPageLevelFeature(session.handle(), session.ticket(),
                                                ZT("page-overrides"), 0, &page);
    EXPECT_EQ(rangeOf(session, page, "input-documents"), "1..1");
    session.release(page);
    session.import(document(""));
    ZentBool empty = 0;
    EXPECT_EQ(fnIsEmpty(session.handle(), session.ticket(), &empty), ZENT_OK);
    EXPECT_EQ(empty, 1);
}

TEST(TicketCallsTest, AFailedImportLeavesTheSessionAlone) {
    const std::string good = copiesDocument(9);
    const Session session;
    session.setNumber("copies", 4);
    MessageBoxes boxes;
    for (const auto& [name, data, format, mode, result] :
         Rows<const char*, std::string, std::uint32_t, std::uint32_t, ZentResult>{
             {"format 0", good, 0, 1, ZENT_ERR_TICKET_FORMAT},
             {"format and mode", good, 3, 6, ZENT_ERR_TICKET_FORMAT},
             {"nothing", "", 1, 1, ZENT_ERR_XML_OTHER},
             {"no XML", "copies=2", 1, 1, ZENT_ERR_XML_PARSE},
             {"cut short", good.substr(0, good.size() - 1), 1, 1, ZENT_ERR_XML_PARSE},
             {"no document type", "<ordo/>", 1, 1, ZENT_ERR_XML_PARSE},
             {"unknown element", document("<no-such syntax=\"integer\">1</no-such>"), 1, 1,
              ZENT_ERR_XML_PARSE},
             {"another file",
              "<!DOCTYPE ordo [<!ENTITY e SYSTEM \"/etc/passwd\">]><ordo>&e;</ordo>", 1, 1,
              ZENT_ERR_XML_PARSE},
         }) {
        SCOPED_TRACE(name);
        const Imported imported = session.tryImport(data, format, mode);
        EXPECT_EQ(imported.result, result);
        EXPECT_EQ(imported.problems, 7);
        EXPECT_EQ(imported.applied, 7);
        EXPECT_EQ(copiesIn(session), "4");
    }
    EXPECT_TRUE(boxes.take().empty());
    const Session loud(false);
    loud.tryImport("copies=2");
    const std::vector<MessageBox> shown = boxes.take();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_THAT(shown[0].text, testing::StartsWith("A job ticket document could not be read"));
}

// Nothing that long lies there: it would be a fault to look at more than the first byte.
TEST(TicketCallsTest, DataBeyondWhatIsReadIsRefusedBeforeItIsCopied) {
    const Session session;
    ZentBool out = 0;
    std::uint32_t size = 0;
    for (const std::uint32_t length : {67'108'865U, 0xFFFFFFFFU}) {
        for (const auto& [format, result] :
             {std::pair{1U, ZENT_ERR_XML_PARSE}, std::pair{2U, ZENT_ERR_COMPRESSION},
              std::pair{3U, ZENT_ERR_TICKET_FORMAT}}) {
            EXPECT_EQ(fnImportJobTicket(session.handle(), "<", length, format, 1, nullptr, nullptr,
                                        &out, &out),
                      result);
        }
        EXPECT_EQ(fnUpdateUserContextInformation(session.handle(), "<", length, nullptr, &size),
                  ZENT_ERR_COMPRESSION);
    }
}

TEST(TicketCallsTest, AnExportBeyondWhatIsReadFailsAndHandsNothingOut) {
    const Session session;
    const Text text(22'400'000, ZentChar{0x20AC}); // each is three bytes of a document
    ASSERT_EQ(fnSetStringValue(session.handle(), session.ticket(), ZT("job-name"), text.c_str(), 0),
              ZENT_OK);
    for (const std::uint32_t format : {ZENT_FORMAT_XML, ZENT_FORMAT_STATE}) {
        std::uint32_t size = 0;
        EXPECT_EQ(fnExportJobTicket(session.handle(), nullptr, &size, format),
                  ZENT_ERR_XML_GENERATE);
        fnExportJobTicket(session.handle(), nullptr, &size, format);
        EXPECT_EQ(size, 0U);
    }
}

TEST(TicketCallsTest, AResultWaitsUntilItIsFetched) {
    const Session session;
    session.import(copiesDocument(1));
    const std::string first = session.exported();
    const std::uint32_t size = session.exportSize();
    EXPECT_EQ(size, first.size());
    session.import(copiesDocument(22222)); // doesn't drop it

    std::string buffer(size + 1, '?');
    const std::string untouched = buffer;
    std::uint32_t given = size - 1;
    EXPECT_EQ(fnExportJobTicket(session.handle(), buffer.data(), &given, ZENT_FORMAT_XML),
              ZENT_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(given, size);
    EXPECT_EQ(buffer, untouched);
    given = size + 1;
    EXPECT_EQ(fnExportJobTicket(session.handle(), buffer.data(), &given, ZENT_FORMAT_XML), ZENT_OK);
    EXPECT_EQ(given, size);
    EXPECT_EQ(buffer, first + '?'); // no terminator
    // Now it is made anew, also in one go.
    std::string second(1000, '?');
    given = 1000;
    EXPECT_EQ(fnExportJobTicket(session.handle(), second.data(), &given, ZENT_FORMAT_XML), ZENT_OK);
    EXPECT_EQ(given, size + 4);
}

TEST(TicketCallsTest, AWaitingResultIsDroppedByChangesOnly) {
    const Session session;
    const ZentSessionType s = session.handle();
    const TarvoJtSettingsType t = session.ticket();
    const TarvoJtSettingsType free = session.newSettings();
    std::uint32_t out = 0;
    ZentBool found = 0;
    const ZentChar* const overrides = ZT("page-overrides");
    const std::function<ZentResult()> changes[] = {
        [&] { return fnSetNumberValue(s, t, ZT("copies"), 5, 0); },
        [&] { return fnSetStringValue(s, t, ZT("job-name"), ZT("x"), 0); },
        [&] { return fnSetRangeValues(s, t, ZT("page-ranges"), 1, 2, 0); },
        [&] { return fnSetResolutionValue(s, t, ZT("printer-resolution"), 1, 2, 3, 0); },
        [&] { return fnSetStockSizeValues(s, t, 1, 2); },
        [&] { return fnUnspecifyFeature(s, t, ZT("sides")); },
        [&] { return fnUnspecifyAllFeatures(s, t); },
        [&] { return fnSetPageLevelFeatureFromTarvoJtSettings(s, t, overrides, 0, free); },
        [&] { return fnRemovePageLevelFeatureFromTarvoJtSettings(s, t, overrides, 0); },
    };
    const std::pair<std::function<ZentResult()>, ZentResult> others[] = {
        {[&] { return fnGetNumberOfValues(s, t, ZT("copies"), &out); }, ZENT_OK},
        {[&] { return fnSetNumberValue(s, free, ZT("copies"), 5, 0); }, ZENT_OK},
        {[&] { return fnSetNumberValue(s, t, ZT("no-such"), 5, 0); }, ZENT_ERR_UNKNOWN_FEATURE},
        {[&] { return fnImportJobTicket(s, "", 0, 1, 1, nullptr, nullptr, &found, &found); },
         ZENT_ERR_XML_OTHER},
    };
    session.import(copiesDocument(1));
    const std::string waiting = session.exported();
    const auto staysAfter = [&](const std::function<ZentResult()>& call, ZentResult result) {
        session.import(copiesDocument(1));
        session.exportSize();
        session.import(copiesDocument(22222));
        EXPECT_EQ(call(), result);
        const bool stays = session.exported() == waiting;
        fnUnspecifyAllFeatures(s, t);
        return stays;
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        EXPECT_FALSE(staysAfter(changes[i], ZENT_OK)) << i;
    }
    for (const auto& [call, result] : others) {
        EXPECT_TRUE(staysAfter(call, result)) << result;
    }
    session.release(free);
}

} // namespace
} // namespace zent::test
