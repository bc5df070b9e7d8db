#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

class PageLevelCallsTest : public testing::Test {
protected:
    /// A free copy of the value at an index, as a list of its copies: "2", "none".
    std::string copiesOf(const char* feature, std::uint32_t index) const {
        TarvoJtSettingsType page = nullptr;
        const ZentResult result =
            fnCreateTarvoJtSettingsFromPageLevelFeature(s, t, wide(feature).c_str(), index, &page);
        if (result != ZENT_OK) {
            EXPECT_EQ(page, nullptr);
            return "result " + std::to_string(result);
        }
        std::string copies = numberOf(session, page, "copies");
        session.release(page);
        return copies;
    }
    TarvoJtSettingsType settingsOfCopies(std::int32_t copies) const {
        const TarvoJtSettingsType settings = session.newSettings();
        EXPECT_EQ(fnSetNumberValue(s, settings, ZT("copies"), copies, 0), ZENT_OK);
        return settings;
    }
    ZentResult setPage(TarvoJtSettingsType target, const char* feature, std::uint32_t index,
                       TarvoJtSettingsType source) const {
        return fnSetPageLevelFeatureFromTarvoJtSettings(s, target, wide(feature).c_str(), index,
                                                        source);
    }
    ZentResult removePage(const char* feature, std::uint32_t index) const {
        return fnRemovePageLevelFeatureFromTarvoJtSettings(s, t, wide(feature).c_str(), index);
    }

    const Session session;
    const ZentSessionType s = session.handle();
    const TarvoJtSettingsType t = session.ticket();
};

TEST_F(PageLevelCallsTest, PagesAreStoredCopiedAndRemoved) {
    const TarvoJtSettingsType page = settingsOfCopies(1);
    EXPECT_EQ(setPage(t, "page-overrides", 0, page), ZENT_OK);
    fnSetNumberValue(s, page, ZT("copies"), 2, 0); // what is stored is a copy
    EXPECT_EQ(setPage(t, "page-overrides", 5, page), ZENT_OK);
    EXPECT_EQ(setPage(t, "cover-front", 0, page), ZENT_OK);
    EXPECT_EQ(copiesOf("page-overrides", 0), "1");
    EXPECT_EQ(copiesOf("page-overrides", 1), "2");
    EXPECT_EQ(copiesOf("page-overrides", 2), "none");
    EXPECT_EQ(copiesOf("cover-front", 0), "2");
    EXPECT_EQ(copiesOf("cover-back", 0), "none");
    EXPECT_EQ(countOf(session, t, "page-overrides"), "2");

    EXPECT_EQ(removePage("page-overrides", 0), ZENT_OK);
    EXPECT_EQ(copiesOf("page-overrides", 0), "2");
    EXPECT_EQ(removePage("page-overrides", 3), ZENT_OK); // there is none
    EXPECT_EQ(removePage("page-overrides", 0), ZENT_OK);
    EXPECT_EQ(countOf(session, t, "page-overrides"), "0");
    EXPECT_EQ(removePage("cover-front", 0), ZENT_OK);
    ZentBool empty = 0;
    EXPECT_EQ(fnIsEmpty(s, t, &empty), ZENT_OK);
    EXPECT_EQ(empty, 1);
    session.release(page);
}

TEST_F(PageLevelCallsTest, ATicketMayBecomeAPageOfItself) {
    session.setNumber("copies", 3);
    EXPECT_EQ(setPage(t, "cover-front", 0, t), ZENT_OK);
    EXPECT_EQ(setPage(t, "page-overrides", 0, t), ZENT_OK);
    EXPECT_EQ(copiesOf("cover-front", 0), "3");
    EXPECT_EQ(copiesOf("page-overrides", 0), "3");
    EXPECT_EQ(rangeOf(session, t, "input-documents"), "1..1"); // shaped as the source
}

TEST_F(PageLevelCallsTest, WrongFeaturesAreRefused) {
    session.setNumber("copies", 3);
    EXPECT_EQ(copiesOf("no-such", 0), "result 12");
    EXPECT_EQ(copiesOf("copies", 0), "result 13");
    EXPECT_EQ(copiesOf("", 0), "result 16");
    EXPECT_EQ(setPage(t, "no-such", 0, t), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(setPage(t, "copies", 0, t), ZENT_ERR_ATTRIBUTE_TYPE);
    EXPECT_EQ(removePage("no-such", 0), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(numberOf(session, t, "copies"), "3");
}

} // namespace
} // namespace zent::test
