#include "ocore/UserMessage.h"

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/BoxCapture.h"
#include "ocore/Exceptions.h"
#include "resources/UseResourceLibrary.h"

namespace zent {
namespace {

using Severity = UserMessage::Severity;

int anything = 0;
const platform::WindowHandle someWindow = &anything;

TEST(UserMessage, StyleFollowsSeverityAndOwner) {
    const struct {
        Severity severity;
        platform::WindowHandle owner;
        std::uint32_t given;
        std::uint32_t derived;
    } rows[] = {
        {Severity::information, nullptr, 0, 64 | 8192},
        {Severity::warning, nullptr, 0, 48 | 8192},
        {Severity::error, nullptr, 0, 16 | 8192},
        {Severity::question, nullptr, 0, 32 | 8192},
        {static_cast<Severity>(0), nullptr, 0, 16 | 8192},
        {static_cast<Severity>(9), someWindow, 8192, 16},
        {Severity::information, someWindow, 8192 | 48 | 1, 64 | 1},
        {Severity::warning, someWindow, 64, 48},
        {Severity::error, someWindow, 64 | 32 | 4, 16 | 4},
        {Severity::question, nullptr, 64 | 16, 32 | 8192},
    };
    for (const auto& row : rows) {
        const UserMessage made(row.owner, u"t", u"b", row.given, row.severity);
        EXPECT_EQ(made.getFlags(), row.derived);
        for (const Severity before :
             {Severity::information, Severity::warning, Severity::error, Severity::question}) {
            UserMessage changed(u"t", u"b", 0, before);
            changed.setOwner(row.owner);
            changed.setSeverity(row.severity);
            changed.setFlags(row.given);
            EXPECT_EQ(changed.getFlags(), row.derived);
        }
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

TEST(UserMessage, ShowsWhatItHoldsAndAnswersTheButton) {
    test::useResourceLibrary();
    test::BoxCapture boxes(messageAnswer::cancel);
    UserMessage message(11606, 11607, messageStyle::okCancel, Severity::warning);
    message.setOwner(someWindow);
    EXPECT_EQ(message.clone()->show(), messageAnswer::cancel);
    message.setTitle(11619);
    message.setBody(11601);
    message.show();
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[0].owner, someWindow);
    EXPECT_EQ(boxes.shown()[0].title, test::resourceText(11606));
    EXPECT_EQ(boxes.shown()[0].body, test::resourceText(11607));
    EXPECT_EQ(boxes.shown()[0].flags, 48U | 1U);
    EXPECT_EQ(boxes.shown()[1].title, test::resourceText(11619));
    EXPECT_EQ(boxes.shown()[1].body, test::resourceText(11601));
}

} // namespace
} // namespace zent
