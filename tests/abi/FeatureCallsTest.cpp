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

    struct Row {
        const char* feature;
        const char* string;
        const char* number;
        const char* range;
        const char* resolution;
    };
    const Row rows[] = {
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
    for (const Row& row : rows) {
        SCOPED_TRACE(row.feature);
        EXPECT_EQ(string(row.feature), row.string);
        EXPECT_EQ(number(row.feature), row.number);
        EXPECT_EQ(range(row.feature), row.range);
        EXPECT_EQ(resolution(row.feature), row.resolution);
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

TEST_F(FeatureCallsTest, UnspecifyingLeavesNothingBehind) {
    EXPECT_EQ(session.setString("media-color", "red"), ZENT_OK);
    EXPECT_TRUE(isSpecified("media-col"));
    EXPECT_FALSE(isSpecified("media-size"));
    EXPECT_EQ(unspecify("media-size"), ZENT_OK); // not there
    EXPECT_EQ(unspecify("media-color"), ZENT_OK);
    EXPECT_TRUE(isEmpty());
    session.setNumber("copies", 1);
    EXPECT_EQ(fnUnspecifyAllFeatures(s, t), ZENT_OK);
    EXPECT_TRUE(isEmpty());
}

TEST_F(FeatureCallsTest, TextGoesOutByTheBufferProtocol) {
    session.setString("sides", "one-sided"); // 9 units and the terminator
    struct Row {
        const char* feature;
        bool hasBuffer;
        ZentBool found;
        std::uint32_t size;
        ZentResult result;
        std::uint32_t required;
        const char* text; // null if the buffer is untouched
    };
    const Row rows[] = {
        {"sides", false, 1, 0, ZENT_OK, 10, nullptr},
        {"sides", false, 1, 99, ZENT_OK, 10, nullptr},
        {"sides", true, 1, 0, ZENT_ERR_BUFFER_TOO_SMALL, 10, nullptr},
        {"sides", true, 1, 9, ZENT_ERR_BUFFER_TOO_SMALL, 10, nullptr},
        {"sides", true, 1, 10, ZENT_OK, 10, "one-sided"},
        {"sides", true, 1, 12, ZENT_OK, 10, "one-sided"},
        {"job-name", false, 0, 0, ZENT_OK, 1, nullptr},
        {"job-name", true, 0, 0, ZENT_ERR_BUFFER_TOO_SMALL, 1, nullptr},
        {"job-name", true, 0, 1, ZENT_OK, 1, ""},
        {"no-such", true, 7, 12, ZENT_ERR_UNKNOWN_FEATURE, 12, nullptr}, // all untouched
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.feature) + " " + std::to_string(row.size));
        const Text untouched(12, ZT('?'));
        Text buffer = untouched;
        std::uint32_t size = row.size;
        ZentBool found = 7;
        EXPECT_EQ(fnGetStringValue(s, t, wide(row.feature).c_str(),
                                   row.hasBuffer ? buffer.data() : nullptr, &size, 0, &found),
                  row.result);
        EXPECT_EQ(size, row.required);
        EXPECT_EQ(found, row.found);
        Text expected = untouched;
        if (row.text != nullptr) {
            const Text copied = wide(row.text) + ZT('\0');
            expected.replace(0, copied.size(), copied);
        }
        EXPECT_EQ(narrow(buffer), narrow(expected));
    }
}

TEST_F(FeatureCallsTest, WhatIsNotFoundLeavesNumbersAlone) {
    std::int32_t a = 41;
    std::int32_t b = 42;
    ZentBool found = 7;
    EXPECT_EQ(fnGetNumberValue(s, t, ZT("copies"), &a, 0, &found), ZENT_OK);
    EXPECT_EQ(found, 0);
    found = 7;
    EXPECT_EQ(fnGetRangeValues(s, t, ZT("page-ranges"), &a, &b, 0, &found), ZENT_OK);
    EXPECT_EQ(found, 0);
    found = 7;
    EXPECT_EQ(fnGetStockSizeValues(s, t, &a, &b, &found), ZENT_OK);
    EXPECT_EQ(found, 0);
    // Half of a size or a range is none.
    session.setNumber("x-dimension", 21000);
    EXPECT_EQ(fnGetStockSizeValues(s, t, &a, &b, &found), ZENT_OK);
    EXPECT_EQ(found, 0);
    EXPECT_EQ(a, 41);
    EXPECT_EQ(b, 42);
}

TEST_F(FeatureCallsTest, SizesAreKeptInPortraitOrder) {
    for (const auto& [width, height, kept, size] :
         Rows<std::int32_t, std::int32_t, const char*, const char*>{
             {21000, 29700, "21000 29700", "21000x29700"},
             {29700, 21000, "21000 29700", "21000x29700"},
             {29700, 42000, "29700 42000", "42000x29700"},
             {30000, 10000, "10000 30000", "10000x30000"},
             {0, 10, "0 10", "0x10"},
             {0, 0, "none none", "none"},
             {5000, 5000, "5000 5000", "5000x5000"},
         }) {
        EXPECT_EQ(fnSetStockSizeValues(s, t, width, height), ZENT_OK);
        EXPECT_EQ(number("x-dimension") + " " + number("y-dimension"), kept);
        EXPECT_EQ(sizeOf(session, t), size);
    }
    EXPECT_EQ(session.setString("x-dimension", "wide"), ZENT_OK); // as the number 0
    EXPECT_EQ(sizeOf(session, t), "0x5000");
}

} // namespace
} // namespace zent::test
