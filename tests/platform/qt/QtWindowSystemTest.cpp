#include <thread>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDropEvent>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTextBrowser>

#include "platform/SampleDialog.h"
#include "platform/WindowSystem.h"
#include "support/DialogUser.h"
#include "support/LibraryTesting.h"
#include "support/OpenDialog.h"
#include "support/TemplateBuilder.h"

// What the Windows dialog manager does by itself, and how the adapter lives in its host.

namespace zent::test {
namespace {

using namespace platform;

using user::Key;

constexpr std::uint32_t shown = TemplateBuilder::visible;
constexpr std::uint32_t stop = shown | TemplateBuilder::tabStop;

class QtWindowSystemTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(WindowSystem::find(), nullptr); }
    static WindowSystem& windows() { return *WindowSystem::find(); }

    /// Runs a dialog; what the user does in it comes before its end.
    void run(const TemplateBuilder& builder, const std::function<void(WindowHandle)>& acts,
             WindowHandle owner = nullptr) {
        user::onceOpen([acts](WindowHandle dialog) {
            acts(dialog);
            dialogOf(dialog).end(1);
        });
        windows().runModal(builder.build(), m_resources, owner, m_recorder);
    }
    static void pressWithAlt(WindowHandle dialog, Qt::Key key) {
        QTest::keyClick(static_cast<QWidget*>(dialog), key, Qt::AltModifier);
    }

    SampleResources m_resources;
    Recorder m_recorder;
};

TEST_F(QtWindowSystemTest, MnemonicsOfLabelsAndGroupsLeadToTheItemBehind) {
    constexpr std::uint32_t readOnly = 0x800;
    TemplateBuilder builder(u"Mnemonics");
    builder.add(1, TemplateBuilder::button, stop, {5, 80, 50, 14}, u"OK")
        .add(2, TemplateBuilder::label, shown, {5, 5, 50, 8}, u"&Name:")
        .add(3, TemplateBuilder::edit, shown | readOnly, {60, 5, 50, 12})
        .add(4, TemplateBuilder::edit, stop, {120, 5, 50, 12})
        .add(5, TemplateBuilder::button, shown | 7, {5, 20, 150, 50}, u"&Sides")
        .add(6, TemplateBuilder::button, stop | 3, {10, 30, 50, 10}, u"Front");
    run(builder, [](WindowHandle dialog) {
        pressWithAlt(dialog, Qt::Key_N);
        EXPECT_EQ(user::focused(dialog), 4);
        pressWithAlt(dialog, Qt::Key_S);
        EXPECT_EQ(user::focused(dialog), 6);
        EXPECT_FALSE(at<ButtonItem>(dialog, 6).isChecked());
    });
}

TEST_F(QtWindowSystemTest, AllWaysIntoABoxAreFiltered) {
    using Way = void (*)(QLineEdit&);
    const Way ways[] = {
        [](QLineEdit& edit) {
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("1a2"));
        QApplication::sendEvent(&edit, &event);
        },
        [](QLineEdit& edit) {
        QApplication::clipboard()->setText(QStringLiteral("1a2"));
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                edit.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&edit, &event);
        auto* const menu = edit.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        for (QAction* const action : menu->actions()) {
            if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
                action->trigger();
            }
        }
        menu->close();
    },
              [](QLineEdit& edit) {
        QMimeData data;
        data.setText(QStringLiteral("1a2"));
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit, &event);
    },
        };
    TemplateBuilder builder(u"Ways");
    builder.add(3, TemplateBuilder::edit, stop, {5, 5, 60, 12});
    for (const Way way : ways) {
        run(builder, [&](WindowHandle dialog) {
            at<TextItem>(dialog, 3).setLimit(3);
            at<TextItem>(dialog, 3).setFilter([](auto, auto, auto, char16_t character) {
                return character >= u'0' && character <= u'9';
            });
            auto& edit = *static_cast<QWidget*>(dialog)->findChild<QLineEdit*>(QStringLiteral("3"));
            way(edit);
            EXPECT_EQ(at(dialog, 3).getText(), u"12");
            edit.undo();
            EXPECT_EQ(at(dialog, 3).getText(), u"");
        });
    }
}

TEST_F(QtWindowSystemTest, SpinsServeTheirBuddies) {
    constexpr std::uint32_t allForBuddy = 0x2 | 0x4 | 0x10 | 0x20; // text, right, own, arrow keys
    TemplateBuilder builder(u"Spin");
    builder.add(3, TemplateBuilder::edit, stop, {5, 5, 60, 12})
        .add(4, u"msctls_updown32", shown | allForBuddy, {100, 50, 10, 10});
    run(builder, [](WindowHandle dialog) {
        const auto items = dialogOf(dialog).getItems();
        EXPECT_EQ(items[0]->getPlace().right, items[1]->getPlace().left);
        EXPECT_EQ(items[1]->getPlace().right, dialogOf(dialog).mapDialogUnits({0, 0, 65, 0}).right);
        at<RangeItem>(dialog, 4).setRange(1, 3);
        at<RangeItem>(dialog, 4).setPosition(2);
        EXPECT_EQ(at(dialog, 3).getText(), u"2");
        user::press(dialog, Key::up);
        user::press(dialog, Key::up);
        EXPECT_EQ(at(dialog, 3).getText(), u"3");
        user::press(dialog, Key::down);
        EXPECT_EQ(at(dialog, 3).getText(), u"2");
    });
}

TEST_F(QtWindowSystemTest, OpenCombosAreUsedByKeyboard) {
    TemplateBuilder builder(u"Combo");
    builder.add(3, TemplateBuilder::comboBox, stop | 1, {5, 5, 60, 60});
    run(builder, [](WindowHandle dialog) {
        for (const auto* const text : {u"A4", u"A3"}) {
            at<ChoiceItem>(dialog, 3).add(text, 0, -1);
        }
        at<ChoiceItem>(dialog, 3).select(0);
        user::press(dialog, Key::down);
        EXPECT_EQ(at(dialog, 3).getText(), u"A3");
        EXPECT_EQ(at<ChoiceItem>(dialog, 3).getSelected(), 1);
    });
}

TEST_F(QtWindowSystemTest, IsThereForTheApplicationsThreadAlone) {
    std::thread([] { EXPECT_EQ(WindowSystem::find(), nullptr); }).join();
}

TEST_F(QtWindowSystemTest, EndsWithAWindowOfTheHost) {
    auto host = std::make_unique<QWidget>();
    host->setWindowTitle(QStringLiteral("Ticket [*]x[*][*]"));
    EXPECT_EQ(windows().getCaption(host.get()), u"Ticket x[*]");
    EXPECT_EQ(windows().getCaption(this), u""); // no window at all
    TemplateBuilder builder(u"Owned");
    builder.add(3, TemplateBuilder::edit, stop, {5, 5, 60, 12});
    run(
        builder,
        [&](WindowHandle dialog) {
        EXPECT_EQ(static_cast<QWidget*>(dialog)->parentWidget(), host.get());
        host.reset();
        EXPECT_FALSE(at(dialog, 3).isThere());
        },
        host.get());
    EXPECT_EQ(m_recorder.log, "init; destroy");
}

TEST_F(QtWindowSystemTest, WhatIsLargerThanTheScreenScrolls) {
    TemplateBuilder builder(u"Large", {0, 0, 2000, 2000});
    builder.add(3, TemplateBuilder::edit, stop, {5, 5, 60, 12})
        .add(4, TemplateBuilder::edit, stop, {1900, 1900, 60, 12});
    run(builder, [](WindowHandle dialog) {
        const Rectangle window = dialogOf(dialog).getWindowRectangle();
        const Rectangle area = dialogOf(dialog).getWorkArea();
        EXPECT_LE(window.width(), area.width());
        EXPECT_LE(window.height(), area.height());
        const auto isSeen = [&](std::uint16_t id) {
            return !static_cast<QWidget*>(dialog)
                        ->findChild<QWidget*>(QString::number(id))
                        ->visibleRegion()
                        .isEmpty();
        };
        EXPECT_TRUE(isSeen(3));
        EXPECT_FALSE(isSeen(4));
        user::press(dialog, Key::tab);
        EXPECT_EQ(user::focused(dialog), 4);
        EXPECT_TRUE(isSeen(4));
    });
}

TEST_F(QtWindowSystemTest, HelpIsShownByTheDesktop) {
    const ScratchFolder folder;
    folder.write("help.html", "<p>Help</p>");
    QTextBrowser viewer;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &viewer, "setSource");
    EXPECT_TRUE(windows().showHelp(nullptr, folder.file("help.html"), 800));
    EXPECT_EQ(viewer.toPlainText(), QStringLiteral("Help"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_FALSE(windows().showHelp(nullptr, folder.file("help.html"), 800)); // no desktop
}

TEST_F(QtWindowSystemTest, AsksForFiles) {
    const ScratchFolder folder;
    const std::u16string wanted(folder.file("new"));
    WindowSystem::FileQuestion question{.title = u"Export",
                                        .filterName = u"Job tickets",
                                        .filterPattern = u"*.xml",
                                        .extension = u"xml",
                                        .fileName = wanted};
    user::onceOpen([](WindowHandle dialog) { user::press(dialog, Key::enter); });
    EXPECT_EQ(windows().askForSaveFile(nullptr, question), wanted + u".xml");
    user::onceOpen([](WindowHandle dialog) { user::press(dialog, Key::escape); });
    EXPECT_EQ(windows().askForOpenFile(nullptr, question), std::nullopt);
}

} // namespace
} // namespace zent::test
