#include "dialogs/DialogSession.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Stock/StockInformation.h"
#include "ocore/Stock/StockList.h"
#include "ocore/User/User.h"
#include "plugin_ui/UIConfiguration.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using platform::WindowHandle;

// Models: one that asks for the account alone, one for all that belongs to it, and one that takes
// but capitals and digits in it.
constexpr std::uint32_t plainAccount = 1;
constexpr std::uint32_t wholeAccount = 42;
constexpr std::uint32_t capitalAccount = 32;

namespace item {
constexpr std::uint16_t jobName = IDC_JOB_NAME;
constexpr std::uint16_t account = IDC_JOB_ACCOUNT;
constexpr std::uint16_t sender = IDC_SENDER;
constexpr std::uint16_t recipient = IDC_RECIPIENT;
constexpr std::uint16_t phone = IDC_PHONE_NUMBER;
constexpr std::uint16_t banner = IDC_BANNER_MESSAGE;
constexpr std::uint16_t operatorMessage = IDC_OPERATOR_MESSAGE;
constexpr std::uint16_t ok = IDC_JOB_NOTES_OK;
constexpr std::uint16_t cancel = IDC_JOB_NOTES_CANCEL;
constexpr std::uint16_t accountButton = IDC_ACCOUNT_BUTTON;
// In the dialog of the account.
constexpr std::uint16_t accountEdit = IDC_ACCOUNT_ID;
constexpr std::uint16_t userEdit = IDC_ACCOUNT_USER;
constexpr std::uint16_t dataEdit = IDC_ACCOUNT_DATA;
constexpr std::uint16_t accountOk = 1;
constexpr std::uint16_t accountCancel = 2;
} // namespace item

TEST(JobNotesTest, WhatIsTypedIsInTheTicketAfterOK) {
    const DialogSession job(plainAccount);
    job.setTicket("copies=3 job-sheet-message=text:Old job-message-to-operator=text:Hurry");
    user::onceOpen([](WindowHandle dialog) {
        EXPECT_EQ(windowSystem().getCaption(dialog), u"Job notes");
        EXPECT_EQ(at(dialog, item::jobName).getText(), u"Untitled");
        EXPECT_EQ(at(dialog, item::banner).getText(), u"Old");
        retype(dialog, item::jobName, u"Annual report!");
        user::type(dialog, item::account, u"4711-a");
        user::type(dialog, item::sender, u"M\u00fcller");
        user::paste(dialog, item::recipient, u"Front desk");
        retype(dialog, item::operatorMessage, u""); // says nothing any more
        keepScreenshot(dialog, "job-notes");
        user::type(dialog, item::phone, u"1"); // not for this printer, and not to be seen
        user::click(dialog, item::ok);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "copies=3 job-sheet-message=text:Old job-name=name:Annual report! "
                            "job-account-id=name:4711-a requesting-user-name=name:" +
                                CXString(u"M\u00fcller").toNarrow() +
                                " job-recipient-name=name:Front desk");
    EXPECT_TRUE(job.boxes().empty());
    // The state blob has it, too.
    FeatureSettings stored;
    job.session().currentState().toAttrNodeList(stored.getAttrNodeList());
    CXString name;
    stored.getString(_FI(feature::jobName), &name);
    EXPECT_EQ(name, u"Annual report!");
}

TEST(JobNotesTest, NothingReachesTheTicketWithoutOK) {
    using Act = void (*)(WindowHandle);
    const Act acts[] = {
        [](WindowHandle dialog) { user::click(dialog, item::cancel); },
        [](WindowHandle dialog) { user::press(dialog, user::Key::escape); },
        [](WindowHandle dialog) { user::close(dialog); },
    };
    for (const Act act : acts) {
        const DialogSession job;
        job.setTicket("copies=3");
        user::onceOpen([&](WindowHandle dialog) {
            user::type(dialog, item::sender, u"Mary");
            act(dialog);
        });
        EXPECT_EQ(job.invoke(), ZENT_OK); // giving up is no failure
        EXPECT_EQ(job.ticket(), "copies=3");
    }
}

TEST(JobNotesTest, TheKeyboardGoesFromTopToBottom) {
    for (const auto& [model, items] : Rows<std::uint32_t, std::vector<std::uint16_t>>{
             {plainAccount,
              {item::jobName, item::account, item::sender, item::recipient, item::banner,
               item::operatorMessage, item::ok, item::cancel, item::jobName}},
             {wholeAccount,
              {item::jobName, item::accountButton, item::sender, item::recipient, item::banner,
               item::operatorMessage, item::ok, item::cancel, item::jobName}},
         }) {
        const DialogSession job(model);
        user::onceOpen([&expected = items](WindowHandle dialog) {
            std::vector<std::uint16_t> visited{user::focused(dialog)};
            while (visited.size() < expected.size()) {
                user::press(dialog, user::Key::tab);
                visited.push_back(user::focused(dialog));
            }
            EXPECT_EQ(visited, expected);
            user::press(dialog, user::Key::enter); // anywhere in a box, accepts
        });
        EXPECT_EQ(job.invoke(), ZENT_OK);
        EXPECT_EQ(job.ticket(), "job-name=name:Untitled");
    }
}

TEST(JobNotesTest, TheAccountHasADialogWhereThereIsMoreToIt) {
    const DialogSession job(wholeAccount);
    job.setTicket("job-accounting-data=text:x");
    const auto fillIn = [](std::uint16_t button) {
        user::onceOpen([button](WindowHandle dialog) {
            user::type(dialog, item::accountEdit, u"Acme 9");
            user::type(dialog, item::userEdit, u"jo");
            retype(dialog, item::dataEdit, u"");
            keepScreenshot(dialog, "account");
            user::click(dialog, button);
        });
    };
    const auto openFrom = [](WindowHandle dialog) {
        EXPECT_FALSE(at(dialog, item::account).isShown());
        user::click(dialog, item::accountButton);
    };
    user::onceOpen([&](WindowHandle dialog) {
        openFrom(dialog);
        user::click(dialog, item::cancel);
    });
    fillIn(item::accountOk);
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "job-accounting-data=text:x"); // the outer dialog was given up
    user::onceOpen([&](WindowHandle dialog) {
        openFrom(dialog);
        user::click(dialog, item::ok);
    });
    fillIn(item::accountCancel);
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "job-accounting-data=text:x job-name=name:Untitled");
    user::onceOpen([&](WindowHandle dialog) {
        openFrom(dialog);
        user::click(dialog, item::ok);
    });
    fillIn(item::accountOk);
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(),
              "job-name=name:Untitled job-account-id=name:Acme 9 job-accounting-user-id=name:jo");
}

TEST(JobNotesTest, ATextThatThePrinterRefusesKeepsTheDialogOpen) {
    const DialogSession job(wholeAccount);
    user::onceOpen([&](WindowHandle dialog) {
        user::click(dialog, item::accountButton);
        user::click(dialog, item::ok);
    });
    user::onceOpen([&](WindowHandle dialog) {
        user::type(dialog, item::accountEdit, u"a/b");
        user::click(dialog, item::accountOk);
        EXPECT_EQ(job.boxes().size(), 1U); // and the dialog is still there
        retype(dialog, item::accountEdit, u"ab");
        user::click(dialog, item::accountOk);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "job-name=name:Untitled job-account-id=name:ab");
    ASSERT_EQ(job.boxes().size(), 1U);
    EXPECT_EQ(job.boxes()[0].title, resourceText(IDS_ACCOUNT_TITLE));
    EXPECT_EQ(job.boxes()[0].body, resourceText(IDS_ACCOUNT_FORBIDDEN));
    EXPECT_NE(job.boxes()[0].owner, nullptr);
}

TEST(JobNotesTest, BoxesTakeAndShowNoMoreThanThePrinterTakes) {
    const DialogSession job(capitalAccount);
    user::onceOpen([](WindowHandle dialog) {
        const auto shown = [&](std::uint16_t item) { return at(dialog, item).getText(); };
        user::type(dialog, item::phone, u"\t");
        user::paste(dialog, item::phone, u"\r\n");
        EXPECT_EQ(shown(item::phone), u"");
        user::paste(dialog, item::phone, std::u16string(5000, u'5'));
        EXPECT_EQ(shown(item::phone), std::u16string(19, u'5'));
        retype(dialog, item::jobName, std::u16string(60, u'n'));
        EXPECT_EQ(shown(item::jobName), std::u16string(40, u'n'));
        retype(dialog, item::jobName, std::u16string(39, u'n') + u"\U0001F600");
        EXPECT_EQ(shown(item::jobName), std::u16string(39, u'n'));
        user::click(dialog, item::accountButton);
        user::click(dialog, item::ok);
    });
    user::onceOpen([](WindowHandle dialog) {
        user::type(dialog, item::accountEdit, u"1234567890ABCDEF");
        user::click(dialog, item::accountOk);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "job-phone-number=text:" + std::string(19, '5') + " job-name=name:" +
                                std::string(39, 'n') + " job-account-id=name:1234567890AB");
}

TEST(JobNotesTest, WhatNobodyTouchesStaysAsItWas) {
    const DialogSession job(plainAccount);
    const CXString twoLines(u"one\ntwo\r\nthree");
    const CXString tooLong(std::u16string(300, u'r'));
    job.settings().setString(_FI(feature::jobMessageToOperator), twoLines);
    job.settings().setString(_FI(feature::jobRecipientName), tooLong);
    const std::string before = job.ticket();
    user::onceOpen([&](WindowHandle dialog) {
        EXPECT_EQ(at(dialog, item::operatorMessage).getText(), twoLines.view());
        EXPECT_EQ(at(dialog, item::recipient).getText(), tooLong.view());
        user::click(dialog, item::ok); // in vain
        EXPECT_EQ(job.boxes().size(), 1U);
        user::click(dialog, item::cancel);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), before);
    ASSERT_EQ(job.boxes().size(), 1U);
    EXPECT_EQ(job.boxes()[0].title, u"Recipient");
    EXPECT_GT(job.boxes()[0].body.find(u"no more than"), 0);
    user::onceOpen([](WindowHandle dialog) {
        retype(dialog, item::recipient, u"r");
        user::click(dialog, item::ok);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    CXString message;
    job.settings().getString(_FI(feature::jobMessageToOperator), &message);
    EXPECT_EQ(message, twoLines);
}

TEST(JobNotesTest, PreferencesFillBoxesAndLockThem) {
    const DialogSession job;
    job.prefer(u"JOB_NAME_PREFERENCE");
    job.prefer(u"USE_LOGON_NAME_PREFERENCE");
    job.prefer(u"ACCOUNT_REQUIRED_PREFERENCE");
    user::onceOpen([&](WindowHandle dialog) {
        EXPECT_FALSE(at(dialog, item::jobName).isEnabled());
        EXPECT_FALSE(at(dialog, item::sender).isEnabled());
        EXPECT_TRUE(at(dialog, item::recipient).isEnabled());
        EXPECT_EQ(at(dialog, item::sender).getText(), User::getLogonName().view());
        user::type(dialog, item::jobName, u"x");
        user::click(dialog, item::ok);
        EXPECT_EQ(job.boxes().size(), 1U); // no account
        user::type(dialog, item::account, u"7");
        user::click(dialog, item::ok);
    });
    EXPECT_EQ(job.invoke(), ZENT_OK);
    EXPECT_EQ(job.ticket(), "requesting-user-name=name:" + User::getLogonName().toNarrow() +
                                " job-account-id=name:7");
    ASSERT_EQ(job.boxes().size(), 1U);
    EXPECT_EQ(job.boxes()[0].body, resourceText(IDS_ACCOUNT_MISSING));
}

TEST(UIConfigurationTest, NamesThePrinterAsAWhole) {
    const DialogSession job(wholeAccount);
    StockInformation stocks(job.session());
    const auto known = StockList::createFromCapabilities(job.session().getCapabilities());
    const auto configuration = UIConfiguration::forPrinter(job.session(), *known, stocks);
    EXPECT_EQ(configuration.printerName, resourceText(IDS_MODEL_CHROMASET_580));
    EXPECT_EQ(textOfList(*configuration.printerDefaults->getAttrNodeList()).find("copies=1"), 0U);
}

TEST(JobNotesTest, WithoutWindowsTheyRefuseToStart) {
    const DialogSession job;
    const WindowSystemReplacement none(nullptr);
    EXPECT_EQ(job.invoke(), ZENT_ERR_DIALOG_START);
    EXPECT_EQ(job.ticket(), "");
    EXPECT_TRUE(job.boxes().empty());
}

TEST(JobNotesTest, EachPrinterHasThem) {
    for (std::uint32_t model = 1; model <= 51; ++model) {
        SCOPED_TRACE(model);
        const DialogSession job(model);
        bool isOpened = false;
        user::onceOpen([&](WindowHandle dialog) {
            isOpened = true;
            // What a printer lacks leaves no hole between boxes that it has.
            for (const auto& group : {std::vector{item::jobName, item::account},
                                      {item::sender, item::recipient, item::phone},
                                      {item::banner, item::operatorMessage}}) {
                EXPECT_TRUE(std::ranges::is_partitioned(
                    group, [&](std::uint16_t edit) { return at(dialog, edit).isShown(); }));
            }
            user::click(dialog, item::ok);
        });
        EXPECT_EQ(job.invoke(), ZENT_OK);
        EXPECT_TRUE(isOpened);
        EXPECT_TRUE(job.boxes().empty());
        EXPECT_EQ(job.ticket(), "job-name=name:Untitled");
    }
}

} // namespace
} // namespace zent::test
