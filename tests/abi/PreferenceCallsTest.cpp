#include "abi/Session.h"
#include "abi/ZentLiteral.h"

namespace zent::test {
namespace {

class PreferenceCallsTest : public testing::Test {
protected:
    bool flag(const char* name, bool otherwise) const {
        ZentBool value = 7;
        EXPECT_EQ(fnGetPreferenceBoolValue(s, wide(name).c_str(), &value, otherwise), ZENT_OK);
        return value == 1;
    }
    std::string text(const char* name, const ZentChar* otherwise) const {
        ZentChar buffer[16] = {};
        std::uint32_t size = 16;
        EXPECT_EQ(fnGetPreferenceStringValue(s, wide(name).c_str(), buffer, &size, otherwise),
                  ZENT_OK);
        EXPECT_EQ(size, Text(buffer).size() + 1);
        return narrow(buffer);
    }
    std::string data(const char* name, const std::string& otherwise) const {
        std::string bytes(16, '?');
        std::uint32_t size = 16;
        EXPECT_EQ(fnGetPreferenceDataValue(s, wide(name).c_str(), bytes.data(), &size,
                                           otherwise.data(),
                                           static_cast<std::uint32_t>(otherwise.size())),
                  ZENT_OK);
        return bytes.substr(0, size);
    }

    const ScratchUser scratch;
    const Session session;
    const ZentSessionType s = session.handle();
};

TEST_F(PreferenceCallsTest, WhatIsStoredWinsOverDefaults) {
    for (const bool isStored : {false, true}) {
        EXPECT_EQ(flag("MINE", true), !isStored);
        EXPECT_EQ(flag("JOB_NAME_PREFERENCE", false), isStored); // the caller's, not the table's
        std::int32_t count = 0;
        EXPECT_EQ(fnGetPreferenceNumberValue(s, ZT("COUNT"), &count, -5), ZENT_OK);
        EXPECT_EQ(count, isStored ? 70000 : -5);
        EXPECT_EQ(text("WORDS", ZT("none yet")), isStored ? "some" : "none yet");
        EXPECT_EQ(text("PREFERRED_JOB_TICKET", nullptr), "");
        EXPECT_EQ(data("BYTES", "abc"), isStored ? std::string("\0\1", 2) : "abc");
        EXPECT_EQ(data("NOTHING", ""), "");
        EXPECT_EQ(fnSetPreferenceBoolValue(s, ZT("MINE"), 0), ZENT_OK);
        EXPECT_EQ(fnSetPreferenceBoolValue(s, ZT("JOB_NAME_PREFERENCE"), 9), ZENT_OK);
        EXPECT_EQ(fnSetPreferenceNumberValue(s, ZT("COUNT"), 70000), ZENT_OK);
        EXPECT_EQ(fnSetPreferenceStringValue(s, ZT("WORDS"), ZT("some")), ZENT_OK);
        EXPECT_EQ(fnSetPreferenceDataValue(s, ZT("BYTES"), "\0\1", 2), ZENT_OK);
    }
}

TEST_F(PreferenceCallsTest, SizesFollowTheBufferProtocol) {
    fnSetPreferenceStringValue(s, ZT("WORDS"), ZT("some"));
    fnSetPreferenceDataValue(s, ZT("BYTES"), "abc", 3);
    ZentChar units[5] = {ZT('?')};
    char bytes[3] = {'?'};
    std::uint32_t size = 4;
    EXPECT_EQ(fnGetPreferenceStringValue(s, ZT("WORDS"), units, &size, nullptr),
              ZENT_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(units[0], ZT('?'));
    EXPECT_EQ(size, 5U);
    EXPECT_EQ(fnGetPreferenceDataValue(s, ZT("BYTES"), nullptr, &size, nullptr, 0), ZENT_OK);
    EXPECT_EQ(size, 3U);
    size = 2;
    EXPECT_EQ(fnGetPreferenceDataValue(s, ZT("BYTES"), bytes, &size, nullptr, 0),
              ZENT_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(bytes[0], '?');
}

TEST_F(PreferenceCallsTest, WellKnownPreferencesKeepTheirType) {
    ZentBool truth = 7;
    std::int32_t value = 0;
    EXPECT_EQ(fnGetPreferenceBoolValue(s, ZT("TOOL_BAR_PREFERENCE"), &truth, 1),
              ZENT_ERR_PREFERENCE_TYPE);
    EXPECT_EQ(truth, 7);
    // A free one is of any type, but what is stored has to make sense as what is asked for.
    EXPECT_EQ(fnSetPreferenceDataValue(s, ZT("MINE"), "x", 1), ZENT_OK);
    EXPECT_EQ(fnGetPreferenceNumberValue(s, ZT("MINE"), &value, 3), ZENT_ERR_INTERNAL_OTHER);
}

TEST_F(PreferenceCallsTest, PrintersShareASetByName) {
    // A session's model and set, what it stores, if anything, and what it then reads.
    const Rows<std::uint32_t, const ZentChar*, ZentBool, std::int32_t, std::int32_t> rows{
        {1, nullptr, 0, 1, 1},      {2, nullptr, 0, 0, 0}, // another printer has its own
        {1, ZT(""), 1, 2, 2},       {2, ZT(""), 1, 0, 2},  // the generic one is of all printers
        {2, ZT("office"), 1, 3, 3}, {1, ZT("office"), 0, 0, 3}, // so is one with a name
        {1, ZT("home"), 0, 0, 0},
    };
    for (const bool reads : {false, true}) {
        for (const auto& [model, set, generic, stored, expected] : rows) {
            ZentSessionType opened = nullptr;
            ASSERT_EQ(fnOpenSession(27, model, 2, 1, 1, set, generic, &opened), ZENT_OK);
            std::int32_t value = expected;
            if (reads) {
                EXPECT_EQ(fnGetPreferenceNumberValue(opened, ZT("N"), &value, 0), ZENT_OK);
            } else if (stored != 0) {
                EXPECT_EQ(fnSetPreferenceNumberValue(opened, ZT("N"), stored), ZENT_OK);
            }
            EXPECT_EQ(value, expected);
            EXPECT_EQ(fnCloseSession(&opened), ZENT_OK);
        }
    }
}

} // namespace
} // namespace zent::test
