#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

class FeatureCallsTest : public testing::Test {
protected:
    std::string string(const char* feature, std::uint32_t index = 0) const {
        return stringOf(session, t, feature, index);
    }
    std::string number(const char* feature, std::uint32_t index = 0) const {
        return numberOf(session, t, feature, index);
    }
    std::string range(const char* feature, std::uint32_t index = 0) const {
        return rangeOf(session, t, feature, index);
    }
    std::string resolution(const char* feature, std::uint32_t index = 0) const {
        return resolutionOf(session, t, feature, index);
    }
    bool isSpecified(const char* feature) const {
        ZentBool specified = 2;
        EXPECT_EQ(fnIsSpecified(s, t, wide(feature).c_str(), &specified), ZENT_OK);
        return specified == 1;
    }
    bool isEmpty() const {
        ZentBool empty = 2;
        EXPECT_EQ(fnIsEmpty(s, t, &empty), ZENT_OK);
        return empty == 1;
    }
    ZentResult unspecify(const char* feature) const {
        return fnUnspecifyFeature(s, t, wide(feature).c_str());
    }

    const Session session;
    const ZentSessionType s = session.handle();
    const TarvoJtSettingsType t = session.ticket();
};

TEST_F(FeatureCallsTest, ValuesComeBackInTheirTypes) {
    EXPECT_TRUE(isEmpty());
    EXPECT_EQ(session.setNumber("copies", -3), ZENT_OK);
    EXPECT_FALSE(isEmpty());
    EXPECT_EQ(session.setString("sides", "one-sided"), ZENT_OK);
    EXPECT_EQ(session.setString("job-name", " Report "), ZENT_OK);
    EXPECT_EQ(session.setString("media-color", "mauve"), ZENT_OK); // not in the table
    EXPECT_EQ(session.setString("media-hole-count", "3"), ZENT_OK);
    EXPECT_EQ(fnSetRangeValues(s, t, ZT("page-ranges"), 2, 5, 0), ZENT_OK);
    EXPECT_EQ(fnSetResolutionValue(s, t, ZT("printer-resolution"), 600, 300, 3, 0), ZENT_OK);
    EXPECT_EQ(session.setNumber("color-srgb-red", 255), ZENT_OK);

    using Shown = const char*;
    const Rows<Shown, Shown, Shown, Shown, Shown> rows{
        // A feature, and what it is as a string, a number, a range and a resolution.
        {"copies", "result 13", "-3", "result 13", "result 13"},
        {"sides", "one-sided", "result 13", "result 13", "result 13"},
        {"job-name", " Report ", "result 13", "result 13", "result 13"},
        {"media-color", "mauve", "result 13", "result 13", "result 13"},
        {"media-hole-count", "result 13", "3", "result 13", "result 13"},
        {"page-ranges", "result 13", "result 13", "2..5", "result 13"},
        {"printer-resolution", "result 13", "result 13", "none", "600x300/3"},
        {"color-srgb-red", "result 13", "255", "result 13", "result 13"},
        {"media-col", "result 13", "result 13", "none", "result 13"},
        {"job-account-id", "none", "none", "none", "none"},
        {"finishings", "none", "none", "none", "none"},
        {"Copies", "result 12", "result 12", "result 12", "result 12"},
        {"value", "result 12", "result 12", "result 12", "result 12"},
        {"", "result 16", "result 16", "result 16", "result 16"},
    };
    for (const auto& [feature, asString, asNumber, asRange, asResolution] : rows) {
        SCOPED_TRACE(feature);
        EXPECT_EQ(string(feature), asString);
        EXPECT_EQ(number(feature), asNumber);
        EXPECT_EQ(range(feature), asRange);
        EXPECT_EQ(resolution(feature), asResolution);
    }
}

TEST_F(FeatureCallsTest, WritesAreRefusedWithTheRightCode) {
    const auto setRange = [&](const char* feature) {
        return fnSetRangeValues(s, t, wide(feature).c_str(), 1, 2, 0);
    };
    session.setNumber("copies", 1);
    const std::string before = session.exported();
    EXPECT_EQ(session.setString("no-such", "x"), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(session.setString("", "x"), ZENT_ERR_ATTRIBUTE_ID);
    EXPECT_EQ(session.setNumber("SIDES", 4), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(setRange("no-such"), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(fnSetResolutionValue(s, t, ZT("no-such"), 1, 1, 3, 0), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(unspecify("no-such"), ZENT_ERR_UNKNOWN_FEATURE);
    EXPECT_EQ(fnUnspecifyFeature(s, t, nullptr), ZENT_ERR_ATTRIBUTE_ID); // as the empty text
    // A single text or number can't make a compound value.
    EXPECT_EQ(session.setNumber("page-ranges", 4), ZENT_ERR_INTERNAL_INDEX);
    EXPECT_EQ(session.setString("media-size", "A4"), ZENT_ERR_INTERNAL_INDEX);
    EXPECT_EQ(session.setString("printer-resolution", "600"), ZENT_ERR_INTERNAL_INDEX);
    EXPECT_EQ(setRange("copies"), ZENT_ERR_ATTRIBUTE_TYPE);
    EXPECT_EQ(session.exported(), before);
    // What is written whole replaces whatever stood there.
    EXPECT_EQ(fnSetRangeValues(s, t, ZT("media-col"), 1, 2, 0), ZENT_OK);
    EXPECT_EQ(session.setString("media-color", "red"), ZENT_OK);
    EXPECT_EQ(unspecify("media-col"), ZENT_OK);
    EXPECT_EQ(session.exported(), before);
}

TEST_F(FeatureCallsTest, SetsHoldSeveralValues) {
    EXPECT_EQ(countOf(session, t, "finishings"), "0");
    EXPECT_EQ(session.setNumber("finishings", 20), ZENT_OK);
    EXPECT_EQ(session.setString("finishings", "1000", 1), ZENT_OK);
    EXPECT_EQ(session.setNumber("finishings", 7, 9), ZENT_OK); // behind the last
    EXPECT_EQ(countOf(session, t, "finishings"), "3");
    EXPECT_EQ(number("finishings", 1), "1000");
    EXPECT_EQ(number("finishings", 2), "7");
    EXPECT_EQ(number("finishings", 3), "none");
    EXPECT_EQ(session.setNumber("finishings", 8, 1), ZENT_OK);
    EXPECT_EQ(unspecify("finishings"), ZENT_OK); // the first
    EXPECT_EQ(countOf(session, t, "finishings"), "2");
    EXPECT_EQ(number("finishings"), "8");

    EXPECT_EQ(fnSetRangeValues(s, t, ZT("page-ranges"), 1, 5, 0), ZENT_OK);
    EXPECT_EQ(fnSetRangeValues(s, t, ZT("page-ranges"), 7, 7, 1), ZENT_OK);
    EXPECT_EQ(range("page-ranges", 1), "7..7");
    EXPECT_EQ(countOf(session, t, "page-ranges"), "2");
    // Beside others, one value is one.
    EXPECT_EQ(session.setNumber("copies", 2), ZENT_OK);
    EXPECT_EQ(countOf(session, t, "copies"), "1");
    EXPECT_EQ(countOf(session, t, "sides"), "0");
    EXPECT_EQ(countOf(session, t, "no-such"), "result 12");
}

TEST_F(FeatureCallsTest, TextGoesOutByTheBufferProtocol) {
    session.setString("sides", "one-sided"); // 9 units and the terminator
    // A feature, whether there is a buffer and of what size; then the result, the size that is
    // required, whether it was found, and what is in the buffer, null if it is untouched.
    const Rows<const char*, bool, std::uint32_t, ZentResult, std::uint32_t, ZentBool, const char*>
        rows{
            {"sides", false, 0, ZENT_OK, 10, 1, nullptr},
            {"sides", false, 99, ZENT_OK, 10, 1, nullptr},
            {"sides", true, 0, ZENT_ERR_BUFFER_TOO_SMALL, 10, 1, nullptr},
            {"sides", true, 9, ZENT_ERR_BUFFER_TOO_SMALL, 10, 1, nullptr},
            {"sides", true, 10, ZENT_OK, 10, 1, "one-sided"},
            {"sides", true, 12, ZENT_OK, 10, 1, "one-sided"},
            {"job-name", false, 0, ZENT_OK, 1, 0, nullptr},
            {"job-name", true, 0, ZENT_ERR_BUFFER_TOO_SMALL, 1, 0, nullptr},
            {"job-name", true, 1, ZENT_OK, 1, 0, ""},
            {"no-such", true, 12, ZENT_ERR_UNKNOWN_FEATURE, 12, 7, nullptr}, // all untouched
        };
    for (const auto& [feature, hasBuffer, capacity, result, required, isFound, text] : rows) {
        SCOPED_TRACE(std::string(feature) + " " + std::to_string(capacity));
        const Text untouched(12, ZT('?'));
        Text buffer = untouched;
        std::uint32_t size = capacity;
        ZentBool found = 7;
        EXPECT_EQ(fnGetStringValue(s, t, wide(feature).c_str(), hasBuffer ? buffer.data() : nullptr,
                                   &size, 0, &found),
                  result);
        EXPECT_EQ(size, required);
        EXPECT_EQ(found, isFound);
        Text expected = untouched;
        if (text != nullptr) {
            const Text copied = wide(text) + ZT('\0');
            expected.replace(0, copied.size(), copied);
        }
        EXPECT_EQ(narrow(buffer), narrow(expected));
    }
}

} // namespace
} // namespace zent::test
