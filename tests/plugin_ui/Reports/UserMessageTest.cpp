#include "plugin_ui/Reports/UserMessage.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using Severity = UserMessage::Severity;

int anything = 0;
const platform::WindowHandle someWindow = &anything;

TEST(UserMessage, StyleFollowsSeverityAndOwner) {
    const Rows<Severity, platform::WindowHandle, std::uint32_t, std::uint32_t> rows{
        {Severity::information, nullptr, 0, 64 | 8192},
        {Severity::question, nullptr, 64 | 16, 32 | 8192},
        {static_cast<Severity>(0), nullptr, 0, 16 | 8192},
        {Severity::warning, someWindow, 8192 | 64 | 1, 48 | 1},
        {Severity::error, someWindow, 64 | 32 | 4, 16 | 4},
    };
    for (const auto& [severity, owner, given, derived] : rows) {
        EXPECT_EQ(UserMessage(owner, u"t", u"b", given, severity).getFlags(), derived);
        UserMessage changed(u"t", u"b", 0, Severity::question);
        changed.setOwner(owner);
        changed.setSeverity(severity);
        changed.setFlags(given);
        EXPECT_EQ(changed.getFlags(), derived);
    }
    EXPECT_EQ(UserMessage(someWindow).getFlags(), 16U);
}

TEST(UserMessage, QuotesItsException) {
    setExceptionLocation(u"a.cpp", 5);
    const InvalidZentSessionException exception;
    UserMessage message(u"title", u"body", 0);
    message.setException(&exception);
    EXPECT_EQ(message.getBody(), u"body\r\n\r\n025:000:0005");
    message.setBody(u"other");
    EXPECT_EQ(message.getBody(), u"other\r\n\r\n025:000:0005");
    message.setException(nullptr);
    EXPECT_EQ(message.getBody(), u"other\r\n\r\n025:000:0005");
    message.setBody(u"plain");
    EXPECT_EQ(message.getBody(), u"plain");
}

} // namespace
} // namespace zent::test
