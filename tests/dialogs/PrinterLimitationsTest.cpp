#include "dialogs/DialogSession.h"
#include "ocore/Checking/SettingsValidator.h"
#include "plugin_ui/Reports/SettingsProblemReporter.h"
#include "resources/ids.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

using platform::WindowHandle;

namespace item {
constexpr std::uint16_t ok = 1;
constexpr std::uint16_t cancel = 2;
constexpr std::uint16_t report = IDC_TICKET_CHECK_REPORT;
constexpr std::uint16_t label = IDC_TICKET_CHECK_LABEL;
} // namespace item

const ZentChar title[] = {'M', 'i', 'n', 'e', 0};
const ZentChar noTitle[] = {0};

struct Applied {
    ZentResult result;
    ZentBool problems = 7;
    ZentBool usable = 7;

    bool operator==(const Applied&) const = default;
};

Applied apply(const DialogSession& job, std::uint32_t mode, const ZentChar* caption) {
    Applied applied{};
    applied.result = fnApplyPrinterCapabilitiesToSettings(job.handle(), mode, nullptr, caption,
                                                          &applied.problems, &applied.usable);
    return applied;
}

TEST(PrinterLimitationsTest, TheUserAgreesToARepairOrNot) {
    using Act = void (*)(WindowHandle);
    const Act ok = [](WindowHandle dialog) { user::click(dialog, item::ok); };
    const Act cancel = [](WindowHandle dialog) { user::click(dialog, item::cancel); };
    const Act enter = [](WindowHandle dialog) { user::press(dialog, user::Key::enter); };
    const Act escape = [](WindowHandle dialog) { user::press(dialog, user::Key::escape); };
    const Act close = [](WindowHandle dialog) { user::close(dialog); };
    const std::tuple<Act, std::uint32_t, ZentBool> rows[] = {
        {ok, 3, 1}, {cancel, 3, 0}, {ok, 4, 0},     {cancel, 4, 0},
        {ok, 5, 1}, {enter, 5, 1},  {escape, 5, 0}, {close, 5, 0}};
    for (const auto& [act, mode, usable] : rows) {
        SCOPED_TRACE(mode);
        const DialogSession job;
        job.setTicket("copies=3 media-col{media-type=handmade}");
        user::onceOpen([act = act, mode = mode](WindowHandle dialog) {
            EXPECT_EQ(windowSystem().getCaption(dialog), u"Mine");
            EXPECT_EQ(at(dialog, item::label).getText(),
                      resourceText(mode == 4 ? IDS_NOTHING_CHANGES : IDS_REPAIR_QUESTION).view());
            const std::u16string report = at(dialog, item::report).getText();
            EXPECT_NE(report.find(u"\tMedia type"), std::u16string::npos);
            EXPECT_EQ(report.find(u"->") != std::u16string::npos, mode != 4);
            keepScreenshot(dialog, "printer-limitations");
            user::type(dialog, item::report, u"x"); // to be read only
            EXPECT_EQ(at(dialog, item::report).getText(), report);
            act(dialog);
        });
        EXPECT_EQ(apply(job, mode, title), (Applied{ZENT_OK, 1, usable}));
        EXPECT_EQ(job.ticket(), usable != 0 ? "copies=3 media-col{media-type=stationery}"
                                            : "copies=3 media-col{media-type=handmade}");
    }
}

TEST(PrinterLimitationsTest, AnImportThatTheUserRefusesLeavesTheTicket) {
    const DialogSession job;
    const std::string document = ordoTicket("<media-col syntax='collection'>"
                                            "<media-type syntax='keyword'>handmade</media-type>"
                                            "</media-col>");
    for (const bool agrees : {false, true}) {
        job.setTicket("copies=3");
        user::onceOpen([&](WindowHandle dialog) {
            EXPECT_EQ(windowSystem().getCaption(dialog),
                      resourceText(IDS_TICKET_CHECK_TITLE).view());
            user::click(dialog, agrees ? item::ok : item::cancel);
        });
        ZentBool problems = 7;
        ZentBool applied = 7;
        EXPECT_EQ(fnImportJobTicket(job.handle(), document.data(),
                                    static_cast<std::uint32_t>(document.size()), ZENT_FORMAT_XML, 5,
                                    nullptr, noTitle, &problems, &applied),
                  ZENT_OK);
        EXPECT_EQ(problems, 1);
        EXPECT_EQ(applied != 0, agrees);
        EXPECT_EQ(job.ticket() == "copies=3", !agrees);
    }
}

TEST(PrinterLimitationsTest, ANoticeHasOneButton) {
    const DialogSession job;
    const Capabilities& capabilities = job.session().getCapabilities();
    for (const bool closes : {false, true}) {
        Settings ticket(listOf("media-col{media-type=handmade}"));
        SettingsProblemList problems;
        EXPECT_FALSE(validate(capabilities, ticket, problems));
        user::onceOpen([&](WindowHandle dialog) {
            EXPECT_EQ(at(dialog, item::label).getText(), resourceText(IDS_REPAIR_NOTICE).view());
            EXPECT_FALSE(at(dialog, item::ok).isThere());
            EXPECT_EQ(at(dialog, item::cancel).getText(), u"OK");
            EXPECT_EQ(user::focused(dialog), item::cancel);
            if (closes) {
                user::close(dialog);
            } else {
                user::press(dialog, user::Key::enter);
            }
        });
        const SettingsProblemReporter reporter(nullptr, u"title", false, reportMode::silentKeep,
                                               problemPolicy::repair);
        EXPECT_EQ(reporter.report(problems, job.session().getDefaults().getSettings()),
                  problemPolicy::repair);
    }
}

} // namespace
} // namespace zent::test
