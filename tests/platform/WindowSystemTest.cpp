#include "platform/WindowSystem.h"

#include <cstdlib>
#include <stdexcept>

#include <gmock/gmock.h>

#include "platform/SampleDialog.h"
#include "support/DialogUser.h"
#include "support/LibraryTesting.h"
#include "support/OpenDialog.h"
#include "support/Screenshots.h"
#include "support/TemplateBuilder.h"

// What each adapter of the window system has to do, whichever toolkit is below.

namespace zent::test {
namespace {

using namespace platform;

using namespace sample;
using testing::EndsWith;
using testing::HasSubstr;
using user::Key;

class WindowSystemTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(WindowSystem::find(), nullptr); }

    static WindowSystem& windows() { return *WindowSystem::find(); }

    std::intptr_t runSample() {
        return windows().runModal(sampleTemplate(), m_resources, nullptr, m_recorder);
    }
    /// Runs the sample dialog; what the user does when it is open comes before its end with 7.
    std::intptr_t run(const std::function<void(WindowHandle)>& acts) {
        user::onceOpen([&](WindowHandle dialog) {
            m_recorder.log.clear();
            acts(dialog);
            dialogOf(dialog).end(7);
        });
        return runSample();
    }
    /// What the recorder is told while something is done.
    template <typename Act>
    std::string told(const Act& act) {
        m_recorder.log.clear();
        act();
        return std::exchange(m_recorder.log, std::string());
    }

    SampleResources m_resources;
    Recorder m_recorder;
};

TEST_F(WindowSystemTest, TellsFromCreationToTheEnd) {
    m_recorder.onInit = [&](WindowHandle dialog) {
        EXPECT_EQ(m_recorder.log, "init");
        EXPECT_FALSE(dialogOf(dialog).isVisible());
        EXPECT_EQ(at(dialog, notes).getText(), u"one");
        EXPECT_EQ(at(dialog, label).getText(), u"A & B");
        EXPECT_EQ(windows().getCaption(dialog), u"Sample");
        dialogOf(dialog).setCaption(u"Report [*]");
        at(dialog, picture).show(false);
    };
    const std::intptr_t value = run([&](WindowHandle dialog) {
        keepScreenshot(dialog, "sample");
        EXPECT_TRUE(dialogOf(dialog).isVisible());
        EXPECT_EQ(windows().getCaption(dialog), u"Report [*]");
        EXPECT_TRUE(at(dialog, number).isShown());
        EXPECT_FALSE(at(dialog, picture).isShown());
        m_recorder.answer = 5;
        EXPECT_EQ(told([&] { EXPECT_EQ(dialogOf(dialog).send(32771, 0, 0), 5); }), "message 32771");
    });
    EXPECT_EQ(value, 7);
    EXPECT_EQ(m_recorder.log, "destroy");

    m_recorder.onInit = [&](WindowHandle dialog) { dialogOf(dialog).end(3); };
    EXPECT_EQ(told([&] { EXPECT_EQ(runSample(), 3); }), "init; destroy"); // it was never shown
}

TEST_F(WindowSystemTest, ExceptionsEndInTheApplication) {
    for (const bool isEarly : {true, false}) {
        const auto fail = [](WindowHandle) { throw std::runtime_error("refused"); };
        m_recorder.onInit = isEarly ? std::function(fail) : [](WindowHandle) {};
        m_recorder.onCommand[duplex] = fail;
        if (!isEarly) {
            user::onceOpen([](WindowHandle dialog) { user::click(dialog, duplex); });
        }
        EXPECT_THROW(runSample(), std::runtime_error);
        EXPECT_THAT(m_recorder.log, EndsWith("destroy"));
    }
}

TEST_F(WindowSystemTest, ItemsThatAreNotThereDoNothing) {
    run([&](WindowHandle dialog) {
        EXPECT_FALSE(at(dialog, absent).isThere());
        at(dialog, absent).setText(u"x");
        EXPECT_EQ(at(dialog, absent).getText(), u"");
        at<ButtonItem>(dialog, number).setChecked(true); // of another kind
        EXPECT_FALSE(at<ButtonItem>(dialog, number).isChecked());
        EXPECT_EQ(at<ChoiceItem>(dialog, duplex).getCount(), 0);
        at(dialog, duplex).remove();
        EXPECT_FALSE(at(dialog, duplex).isThere());
    });
}

TEST_F(WindowSystemTest, TakesWhatTheFilterPasses) {
    m_recorder.onInit = [&](WindowHandle dialog) {
        auto& edit = at<TextItem>(dialog, number);
        edit.setLimit(5);
        edit.setFilter(
            [](std::u16string_view text, std::int32_t start, std::int32_t, char16_t character) {
            const bool isFirstMinus =
                character == u'-' && start == 0 && text.find(u'-') == std::u16string_view::npos;
            return isFirstMinus || (character >= u'0' && character <= u'9');
        });
    };
    run([&](WindowHandle dialog) {
        auto& edit = at<TextItem>(dialog, number);
        const auto text = [&] { return edit.getText(); };
        for (const std::u16string_view refused : {u"x", u"\u20ac", u"\t"}) {
            EXPECT_EQ(told([&] { user::type(dialog, number, refused); }), "");
            EXPECT_EQ(told([&] { user::paste(dialog, number, refused); }), "");
            EXPECT_EQ(text(), u""); // also in an empty box
        }
        user::paste(dialog, number, std::u16string(5000, u'7'));
        EXPECT_EQ(text(), u"77777");
        edit.selectText(0, -1);
        user::press(dialog, Key::remove);
        m_recorder.log.clear();
        EXPECT_EQ(told([&] { user::type(dialog, number, u"1a2-"); }),
                  "command 10 768; command 10 768");
        EXPECT_EQ(text(), u"12");
        user::paste(dialog, number, u"x3-4y5678");
        EXPECT_EQ(text(), u"12345"); // as many as there is room for
        user::press(dialog, Key::backspace);
        edit.selectText(0, 3);
        user::type(dialog, number, u"x");
        EXPECT_EQ(text(), u"1234");
        user::type(dialog, number, u"-");
        EXPECT_EQ(text(), u"-4");
        // The program isn't asked, nor bound.
        EXPECT_EQ(told([&] { edit.setText(u"free text"); }), "command 10 768");
        EXPECT_EQ(told([&] { edit.setText(u"free text"); }), "");
        EXPECT_EQ(text(), u"free text");
    });
}

TEST_F(WindowSystemTest, TakesWholeCharactersWithinTheLimit) {
    constexpr std::u16string_view emoji = u"\U0001F600";
    run([&](WindowHandle dialog) {
        const auto entered = [&](std::uint16_t item, auto enter, std::u16string_view text) {
            at(dialog, item).setText(u"");
            enter(dialog, item, text);
            return at(dialog, item).getText();
        };
        for (const auto& enter : {user::type, user::paste}) {
            for (const std::uint16_t item : {number, notes}) {
                at<TextItem>(dialog, item).setLimit(4);
                EXPECT_EQ(entered(item, enter, u"abc\U0001F600"), u"abc");
                EXPECT_EQ(entered(item, enter, u"ab\U0001F600d"), u"ab\U0001F600");
            }
        }
        EXPECT_EQ(entered(number, user::paste, u"abc\U0001F600d"), u"abc"); // and no gap
        // A filter that passes but one half passes none.
        at<TextItem>(dialog, number).setFilter([&](auto, auto, auto, char16_t character) {
            return character != emoji.back();
        });
        EXPECT_EQ(entered(number, user::type, emoji), u"");
        EXPECT_EQ(entered(number, user::paste, emoji), u"");
    });
}

TEST_F(WindowSystemTest, ALineIsTakenUpToItsEnd) {
    run([&](WindowHandle dialog) {
        at(dialog, number).setText(u"4711-FIN");
        at<TextItem>(dialog, number).selectText(0, -1);
        user::paste(dialog, number, u"4711\r\nFIN");
        EXPECT_EQ(at(dialog, number).getText(), u"4711");
        // What the program sets stays as it is, line ends of one-line items included.
        at(dialog, number).setText(u"a\nb");
        EXPECT_EQ(at(dialog, number).getText(), u"a\nb");
        at(dialog, notes).setText(u"");
        at<TextItem>(dialog, notes).setLimit(100);
        user::paste(dialog, notes, u"a\nb\r\nc");
        EXPECT_EQ(at(dialog, notes).getText(), u"a\r\nb\r\nc");
    });
}

TEST_F(WindowSystemTest, Lines) {
    run([&](WindowHandle dialog) {
        user::type(dialog, notes, u"\rtwo");
        EXPECT_EQ(at(dialog, notes).getText(), u"one\r\ntwo");
        at<TextItem>(dialog, notes).selectText(3, 6);
        EXPECT_EQ(told([&] { user::type(dialog, notes, u"x"); }), "command 11 768");
        EXPECT_EQ(at(dialog, notes).getText(), u"onexwo");
        at(dialog, notes).setText(u"a\r\nb");
        EXPECT_EQ(at(dialog, notes).getText(), u"a\r\nb");
        at(dialog, notes).focus();
        m_recorder.notesFocus = true;
        EXPECT_EQ(told([&] { at(dialog, duplex).focus(); }), "command 11 512");
        m_recorder.notesFocus = false;
    });
}

TEST_F(WindowSystemTest, ChecksAndRadios) {
    run([&](WindowHandle dialog) {
        const auto marks = [&] {
            std::string result;
            for (const std::uint16_t item : {duplex, firstRadio, secondRadio, otherRadio}) {
                result += at<ButtonItem>(dialog, item).isChecked() ? '1' : '0';
            }
            return result;
        };
        EXPECT_EQ(told([&] { user::click(dialog, duplex); }), "command 12 0");
        user::click(dialog, firstRadio);
        user::click(dialog, otherRadio);
        EXPECT_EQ(marks(), "1101");
        EXPECT_EQ(told([&] { user::click(dialog, secondRadio); }), "command 14 0");
        EXPECT_EQ(marks(), "1011");
        // What the program does raises nothing and moves no other mark.
        EXPECT_EQ(told([&] {
                      at<ButtonItem>(dialog, duplex).setChecked(false);
                      at<ButtonItem>(dialog, secondRadio).setChecked(false);
                      at<ButtonItem>(dialog, firstRadio).setChecked(true);
                  }),
                  "");
        EXPECT_EQ(marks(), "0101");
        at(dialog, duplex).enable(false);
        EXPECT_FALSE(at(dialog, duplex).isEnabled());
        EXPECT_EQ(told([&] { user::click(dialog, duplex); }), "");
    });
}

TEST_F(WindowSystemTest, Lists) {
    m_recorder.onInit = [&](WindowHandle dialog) {
        for (const std::uint16_t item : {choice, ownChoice, openChoice, list}) {
            auto& box = at<ChoiceItem>(dialog, item);
            EXPECT_EQ(box.add(u"cherry", 3, -1), 0);
            EXPECT_EQ(box.add(u"apple", 1, 0), 0);
            EXPECT_EQ(box.add(u"banana", 0xFFFFFFFF, 1), 1);
            EXPECT_EQ(box.getSelected(), -1);
        }
        EXPECT_EQ(at<ChoiceItem>(dialog, list).add(u"blueberry", 4, -1), 2); // it is sorted
    };
    run([&](WindowHandle dialog) {
        for (const std::uint16_t item : {choice, ownChoice, openChoice, list}) {
            auto& box = at<ChoiceItem>(dialog, item);
            const std::string event = "command " + std::to_string(item);
            EXPECT_THAT(told([&] { user::choose(dialog, item, 1); }), EndsWith(event + " 1"));
            EXPECT_EQ(box.getSelected(), 1);
            EXPECT_EQ(box.getEntryText(1), u"banana");
            EXPECT_EQ(box.getEntryValue(1), 0xFFFFFFFFU);
            EXPECT_EQ(told([&] {
                          box.select(0);
                          box.setEntryText(2, u"date");
                          box.removeEntry(0);
                      }),
                      "");
            EXPECT_EQ(box.getSelected(), -1);
            EXPECT_EQ(box.getEntryText(1), u"date");
            EXPECT_EQ(box.getCount(), item == list ? 3 : 2);
            if (item == ownChoice || item == openChoice) {
                box.select(0);
                EXPECT_EQ(told([&] { user::type(dialog, item, u"s"); }), event + " 5");
                EXPECT_EQ(at(dialog, item).getText(), u"bananas");
                EXPECT_EQ(box.getSelected(), -1);
            }
            box.clear();
            EXPECT_EQ(box.getCount(), 0);
        }
    });
}

TEST_F(WindowSystemTest, ListViews) {
    using RowNumbers = std::vector<std::int32_t>;
    m_recorder.onInit = [&](WindowHandle dialog) {
        auto& rows = at<RowsItem>(dialog, table);
        rows.setStyle(RowsItem::Style::checkedDetails);
        rows.addColumn(u"Name", 80);
        rows.addColumn(u"Size", 60);
        for (const std::uintptr_t value : {7U, 8U, 9U}) {
            const std::int32_t row = rows.addRow(u"row", 0, value);
            rows.setCell(row, 1, u"A4");
        }
        rows.setRowChecked(0, true);
        rows.selectRow(0);
        EXPECT_EQ(m_recorder.log, "init");
    };
    run([&](WindowHandle dialog) {
        auto& rows = at<RowsItem>(dialog, table);
        EXPECT_EQ(rows.getSelectedRows(), RowNumbers{0});
        EXPECT_EQ(rows.getCell(2, 1), u"A4");
        EXPECT_THAT(told([&] { user::clickRow(dialog, table, 2); }), HasSubstr("notify 20 -101 2"));
        EXPECT_EQ(rows.getSelectedRows(), RowNumbers{2});
        EXPECT_FALSE(rows.isRowChecked(2));
        EXPECT_THAT(told([&] { user::checkRow(dialog, table, 1); }), HasSubstr("notify 20 -101 1"));
        EXPECT_TRUE(rows.isRowChecked(1));

        EXPECT_EQ(told([&] { rows.removeRow(0); }), "");
        EXPECT_EQ(rows.getRowCount(), 2);
        EXPECT_EQ(rows.getRowValue(0), 8U);
        EXPECT_TRUE(rows.isRowChecked(0));
        rows.clearRows();
        EXPECT_EQ(rows.getSelectedRows(), RowNumbers());
    });
}

TEST_F(WindowSystemTest, SlidersAndSpins) {
    m_recorder.onInit = [&](WindowHandle dialog) {
        for (const std::uint16_t item : {slider, scrolled, spin}) {
            at<RangeItem>(dialog, item).setRange(-5, 20);
            at<RangeItem>(dialog, item).setPosition(3);
        }
        EXPECT_EQ(m_recorder.log, "init");
    };
    run([&](WindowHandle dialog) {
        EXPECT_EQ(told([&] { user::moveSlider(dialog, slider, 4); }), "scroll 21 4");
        EXPECT_EQ(at<RangeItem>(dialog, slider).getPosition(), 4);
        EXPECT_EQ(at<RangeItem>(dialog, scrolled).getPosition(), 3);
        at<RangeItem>(dialog, slider).setPosition(100);
        EXPECT_EQ(at<RangeItem>(dialog, slider).getPosition(), 20);

        EXPECT_EQ(told([&] { user::spin(dialog, spin, true); }), "notify 22 -722 3 -1");
        EXPECT_EQ(told([&] { user::spin(dialog, spin, false); }), "notify 22 -722 4 1");
        EXPECT_EQ(at<RangeItem>(dialog, spin).getPosition(), 3);
        m_recorder.answer = 1; // against the step
        user::spin(dialog, spin, true);
        EXPECT_EQ(at<RangeItem>(dialog, spin).getPosition(), 3);
    });
}

TEST_F(WindowSystemTest, IsUsedByKeyboard) {
    m_recorder.onInit = [&](WindowHandle dialog) {
        at(dialog, notes).show(false);
        at(dialog, choice).enable(false);
        at<ButtonItem>(dialog, firstRadio).setChecked(true);
        at<ButtonItem>(dialog, otherRadio).setChecked(true);
    };
    run([&](WindowHandle dialog) {
        std::vector<std::uint16_t> order = {user::focused(dialog)};
        for (int i = 0; i < 12; ++i) {
            user::press(dialog, Key::tab);
            order.push_back(user::focused(dialog));
            EXPECT_EQ(dialogOf(dialog).getFocusedItem(), order.back());
        }
        EXPECT_THAT(order, testing::ElementsAre(number, duplex, firstRadio, otherRadio, ownChoice,
                                                openChoice, list, table, slider, drawn, ok, cancel,
                                                number));
        user::press(dialog, Key::shiftTab);
        EXPECT_EQ(user::focused(dialog), cancel);
        at(dialog, duplex).focus();
        EXPECT_EQ(told([&] { user::press(dialog, Key::space); }), "command 12 0");
        EXPECT_EQ(told([&] { user::press(dialog, Key::enter); }), "command 1 0");
    });
}

/// As of templates that are merged, each with a default button.
TEST_F(WindowSystemTest, EnterPressesTheDefaultButton) {
    using T = TemplateBuilder;
    constexpr std::uint32_t stop = T::visible | T::tabStop;
    constexpr std::uint16_t hidden = 30;
    const auto bytes = T(u"Defaults")
                           .add(number, T::edit, stop, {5, 5, 40, 12})
                           .add(hidden, T::button, T::tabStop | 1, {5, 25, 50, 14}, u"Page")
                           .add(ok, T::button, stop, {60, 25, 50, 14}, u"OK")
                           .add(cancel, T::button, stop | 1, {115, 25, 50, 14}, u"Cancel")
                           .build();
    user::onceOpen([&](WindowHandle dialog) {
        at<ButtonItem>(dialog, ok).makeDefault();
        EXPECT_EQ(user::focused(dialog), number);
        EXPECT_EQ(told([&] { user::press(dialog, Key::enter); }), "command 1 0");
        keepScreenshot(dialog, "default-button");
        at(dialog, cancel).focus(); // which Enter presses as long as it has the focus
        EXPECT_TRUE(at<ButtonItem>(dialog, ok).isDefault());
        EXPECT_FALSE(at<ButtonItem>(dialog, cancel).isDefault());
        EXPECT_EQ(told([&] { user::press(dialog, Key::enter); }), "command 2 0");
        dialogOf(dialog).end(1);
    });
    m_recorder.onCommand[cancel] = [](WindowHandle) {};
    windows().runModal(bytes, m_resources, nullptr, m_recorder);
}

TEST_F(WindowSystemTest, WithoutAnOwnerDialogsStandInTheMiddle) {
    constexpr std::int32_t tolerance = 40; // of window managers, and of frames
    const auto isInTheMiddle = [](WindowHandle dialog) {
        const Rectangle place = dialogOf(dialog).getWindowRectangle();
        const Rectangle area = dialogOf(dialog).getWorkArea();
        return std::abs(place.left + place.right - area.left - area.right) < 2 * tolerance &&
               std::abs(place.top + place.bottom - area.top - area.bottom) < 2 * tolerance;
    };
    m_recorder.onInit = [](WindowHandle dialog) { // by its size alone, as fitting does
        Rectangle place = dialogOf(dialog).getWindowRectangle();
        place.right -= 200;
        dialogOf(dialog).moveTo(place);
    };
    run([&](WindowHandle dialog) { EXPECT_TRUE(isInTheMiddle(dialog)); });
    m_recorder.onInit = [](WindowHandle dialog) {
        Rectangle place = dialogOf(dialog).getWindowRectangle();
        dialogOf(dialog).moveTo({3, 4, 3 + place.width(), 4 + place.height()});
    };
    run([&](WindowHandle dialog) {
        EXPECT_EQ(dialogOf(dialog).getWindowRectangle().left, 3);
        EXPECT_EQ(dialogOf(dialog).getWindowRectangle().top, 4);
    });
}

TEST_F(WindowSystemTest, ClosesByCommand) {
    const auto escape = [](WindowHandle dialog) { user::press(dialog, Key::escape); };
    for (const auto& act : {std::function<void(WindowHandle)>(escape), {user::close}}) {
        m_recorder.onCommand.clear();
        user::onceOpen(act);
        EXPECT_EQ(told([&] { EXPECT_EQ(runSample(), 0); }), "init; command 2 0; destroy");
        m_recorder.onCommand[cancel] = [&](WindowHandle dialog) { dialogOf(dialog).end(2); };
        user::onceOpen(act);
        EXPECT_EQ(runSample(), 2);
    }
}

TEST_F(WindowSystemTest, ModelessDialogsGoWithTheirOwners) {
    const auto open = [&](WindowHandle owner) {
        Dialog* const opened =
            windows().createModeless(sampleTemplate(), m_resources, owner, m_recorder);
        return opened != nullptr ? opened->getHandle() : nullptr;
    };
    const WindowHandle owner = open(nullptr);
    ASSERT_NE(owner, nullptr);
    EXPECT_TRUE(dialogOf(owner).isVisible());
    m_recorder.onCommand[ok] = [&](WindowHandle dialog) {
        dialogOf(dialog).destroy();
        EXPECT_FALSE(at(dialog, ok).isThere());
    };
    const WindowHandle first = open(owner);
    EXPECT_EQ(told([&] { user::click(first, ok); }), "command 1 0; destroy");
    EXPECT_TRUE(dialogOf(owner).isVisible());
    const WindowHandle second = open(owner);
    EXPECT_EQ(told([&] { dialogOf(owner).destroy(); }), "destroy; destroy");
    EXPECT_FALSE(dialogOf(second).isVisible());
    EXPECT_FALSE(dialogOf(owner).isVisible());
}

TEST_F(WindowSystemTest, DialogsOpenDialogs) {
    Recorder inner;
    inner.onCommand[ok] = [&](WindowHandle dialog) { dialogOf(dialog).end(1); };
    m_recorder.onCommand[duplex] = [&](WindowHandle dialog) {
        EXPECT_EQ(windows().runModal(sampleTemplate(), m_resources, dialog, inner), 1);
    };
    run([&](WindowHandle dialog) {
        user::onceOpen([](WindowHandle opened) { user::click(opened, ok); });
        EXPECT_EQ(told([&] { user::click(dialog, duplex); }), "command 12 0");
        EXPECT_TRUE(dialogOf(dialog).isVisible());
    });
    EXPECT_EQ(inner.log, "init; command 1 0; destroy");
}

TEST_F(WindowSystemTest, MeasuresAndMoves) {
    run([&](WindowHandle dialog) {
        Dialog& opened = dialogOf(dialog);
        const Rectangle inside = opened.mapDialogUnits({0, 0, 300, 200});
        EXPECT_GT(inside.right, 300);
        EXPECT_EQ(opened.getClientRectangle(), inside);
        const auto items = opened.getItems();
        ASSERT_EQ(items.size(), 20U);
        std::vector<std::uint16_t> marked;
        for (const DialogItem* const item : items) {
            marked.insert(marked.end(), item->isMarkedButton() ? 1 : 0, item->getId());
        }
        EXPECT_THAT(marked, testing::ElementsAre(frame, duplex, firstRadio, secondRadio, otherRadio,
                                                 drawn, ok));
        EXPECT_EQ(items[1]->getId(), label);
        EXPECT_EQ(items[1]->getPlace(), opened.mapDialogUnits({5, 12, 45, 20}));
        items[1]->moveTo({30, 40, 90, 55});
        EXPECT_EQ(items[1]->getPlace(), (Rectangle{30, 40, 90, 55}));

        // Where an item stands on the screen.
        const Rectangle inScreen = at(dialog, duplex).getScreenPlace();
        const Rectangle other = at(dialog, ok).getScreenPlace();
        EXPECT_EQ(inScreen.width(), at(dialog, duplex).getPlace().width());
        EXPECT_EQ(other.left - inScreen.left,
                  at(dialog, ok).getPlace().left - at(dialog, duplex).getPlace().left);
        EXPECT_GT(inScreen.left, opened.getWindowRectangle().left);
        EXPECT_LT(other.bottom, opened.getWindowRectangle().bottom);

        const std::int32_t width = at(dialog, table).getTextWidth(u"Stock");
        EXPECT_GT(width, 10);
        EXPECT_GT(at(dialog, table).getTextWidth(u"Stock name"), width);
        EXPECT_EQ(at(dialog, label).getTextWidth(u""), 0);

        Rectangle place = opened.getWindowRectangle();
        place = {place.left + 7, place.top + 5, place.right - 13, place.bottom + 12};
        opened.moveTo(place);
        EXPECT_EQ(opened.getWindowRectangle(), place);
        EXPECT_EQ(opened.getClientRectangle(),
                  (Rectangle{0, 0, inside.right - 20, inside.bottom + 7}));
        EXPECT_GT(opened.getWorkArea().width(), 100);
    });
}

TEST_F(WindowSystemTest, AsksByMessageBoxes) {
    for (const auto& [flags, key, answer] : Rows<std::uint32_t, Key, std::int32_t>{
             {48, Key::enter, 1},
             {16, Key::escape, 1}, // there is but one button
             {64 + 1, Key::enter, 1},
             {64 + 1, Key::escape, 2},
             {32 + 1 + 0x100, Key::enter, 2}, // the second is the default
             {32 + 4 + 0x100, Key::enter, 7},
         }) {
        user::onceOpen([pressed = key](WindowHandle box) {
            EXPECT_EQ(windows().getCaption(box), u"Title");
            user::press(box, pressed);
        });
        EXPECT_EQ(windows().showMessageBox(nullptr, u"Line\r\nand line", u"Title", flags), answer);
    }
}

/// How many pixels of a bitmap file, of three or four bytes a pixel, have a colour (0xRRGGBB).
std::size_t countPixels(const std::string& file, std::uint32_t colour) {
    const auto field = [&](std::size_t place, std::size_t size) {
        std::size_t value = 0;
        for (std::size_t i = 0; i < size && place + i < file.size(); ++i) {
            value |= std::size_t{static_cast<unsigned char>(file[place + i])} << (8 * i);
        }
        return value;
    };
    const std::size_t width = field(18, 4);
    const std::size_t bytes = field(28, 2) / 8;
    const std::size_t line = (width * bytes + 3) / 4 * 4;
    std::size_t count = 0;
    for (std::size_t start = field(10, 4); start + line <= file.size() && line != 0;
         start += line) {
        for (std::size_t x = 0; x < width; ++x) {
            count += field(start + x * bytes, 3) == colour ? 1U : 0U;
        }
    }
    return count;
}

TEST_F(WindowSystemTest, ShowsPicturesWithoutTheirGround) {
    const ScratchFolder folder;
    m_recorder.onInit = [&](WindowHandle dialog) {
        at<PictureItem>(dialog, picture).setBitmap(redPicture, true);
        at(dialog, drawn).enable(false);
    };
    m_recorder.onDraw = [](WindowHandle, const DrawRequest& request) {
        EXPECT_EQ(request.item, drawn);
        EXPECT_EQ(request.state & 5, 4U);
        request.drawBitmap(redPicture);
    };
    run([&](WindowHandle dialog) {
        const auto count = [&](std::uint32_t colour) {
            EXPECT_TRUE(user::saveScreenshot(dialog, folder.path() / "dialog.bmp"));
            return countPixels(folder.read("dialog.bmp"), colour);
        };
        EXPECT_EQ(count(0xFF0000), 32U); // in both items
        EXPECT_EQ(count(0x0000FF), 0U);
        at<PictureItem>(dialog, picture).setBitmap(0, true);
        EXPECT_EQ(count(0xFF0000), 16U);
        at<RowsItem>(dialog, table).setStyle(RowsItem::Style::icons);
        at<RowsItem>(dialog, table).addRow(u"row", redPicture, 0);
        EXPECT_GE(count(0xFF0000), 32U); // icons may be drawn larger
    });
}

/// Of three rows; what the main dialog's list of pages needs.
TEST_F(WindowSystemTest, ListViewsChangeTheirStyleWhileOpen) {
    using Style = RowsItem::Style;
    m_recorder.onInit = [](WindowHandle dialog) {
        for (const char16_t* const name : {u"Basic", u"Media", u"Covers"}) {
            at<RowsItem>(dialog, table).addRow(name, twoSizes, 0);
        }
        at<RowsItem>(dialog, table).selectRow(0);
    };
    run([&](WindowHandle dialog) {
        const ScratchFolder folder;
        auto& rows = at<RowsItem>(dialog, table);
        const auto shows = [&](std::uint32_t colour) {
            EXPECT_TRUE(user::saveScreenshot(dialog, folder.path() / "dialog.bmp"));
            return countPixels(folder.read("dialog.bmp"), colour) > 100;
        };
        std::int32_t chosen = 0;
        for (const auto& [style, isLarge] :
             Rows<Style, bool>{{Style::icons, true}, {Style::list, false}, {Style::icons, true}}) {
            EXPECT_EQ(told([&, wanted = style] { rows.setStyle(wanted); }), "");
            EXPECT_EQ(rows.getSelectedRows(), std::vector{chosen});
            EXPECT_EQ(rows.getCell(2, 0), u"Covers");
            EXPECT_EQ(shows(largeColour), isLarge);
            EXPECT_EQ(shows(smallColour), !isLarge);
            keepScreenshot(dialog, isLarge ? "icons" : "list");
            chosen = 1 - chosen;
            user::clickRow(dialog, table, chosen);
            EXPECT_EQ(rows.getSelectedRows(), std::vector{chosen});
        }
        const RowsItem::Spacing before = rows.getIconSpacing();
        EXPECT_GT(before.across, 32);
        EXPECT_GT(before.down, 32);
        rows.setIconSpacing({before.across, before.down + 9});
        EXPECT_EQ(rows.getIconSpacing(), (RowsItem::Spacing{before.across, before.down + 9}));
        EXPECT_GE(dialogOf(dialog).getDotsPerInch(), 72);
    });
}

TEST_F(WindowSystemTest, ListViewsTellBeforeTheUserSelects) {
    m_recorder.onInit = [](WindowHandle dialog) {
        at<RowsItem>(dialog, table).addColumn(u"Name", 80);
        for (int i = 0; i < 40; ++i) {
            at<RowsItem>(dialog, table).addRow(u"row", 0, 0);
        }
    };
    run([&](WindowHandle dialog) {
        auto& rows = at<RowsItem>(dialog, table);
        EXPECT_EQ(told([&] {
                      rows.selectRow(0);
                      rows.focusRow(2);
                      rows.ensureRowVisible(39);
                  }),
                  "");
        EXPECT_EQ(rows.getFocusedRow(), 2);
        EXPECT_EQ(rows.getSelectedRows(), std::vector{0});
        EXPECT_TRUE(user::seesRow(dialog, table, 39));
        EXPECT_FALSE(user::seesRow(dialog, table, 0));

        std::string log = told([&] { user::clickRow(dialog, table, 1); });
        EXPECT_THAT(log, HasSubstr("notify 20 -100 0 0; ")); // no longer
        EXPECT_THAT(log, HasSubstr("notify 20 -100 1 3; "));
        EXPECT_LT(log.find("-100 1 3"), log.find("-101 1"));
        EXPECT_EQ(rows.getFocusedRow(), 1);
        EXPECT_EQ(told([&] { user::clickRow(dialog, table, 1); }), ""); // it is selected
        log = told([&] { user::press(dialog, Key::down); });
        EXPECT_THAT(log, HasSubstr("notify 20 -100 2 3; "));
        EXPECT_EQ(rows.getSelectedRows(), std::vector{2});
    });
}

TEST_F(WindowSystemTest, ValuesOfRowsHoldPointers) {
    run([&](WindowHandle dialog) {
        const auto pointer = reinterpret_cast<std::uintptr_t>(this);
        EXPECT_EQ(at<RowsItem>(dialog, table).addRow(u"row", 0, pointer), 0);
        EXPECT_EQ(at<RowsItem>(dialog, table).getRowValue(0), pointer);
        for (const std::uint16_t item : {choice, list}) {
            EXPECT_EQ(at<ChoiceItem>(dialog, item).add(u"entry", pointer, -1), 0);
            EXPECT_EQ(at<ChoiceItem>(dialog, item).getEntryValue(0), pointer);
        }
    });
}

TEST_F(WindowSystemTest, PicturesTellOfTheMouseIfTheyWatchIt) {
    m_recorder.onInit = [](WindowHandle dialog) {
        at<PictureItem>(dialog, picture).setBitmap(redPicture, true);
    };
    run([&](WindowHandle dialog) {
        EXPECT_EQ(told([&] { user::pressMouse(dialog, picture, 3, 2); }), "");
        at<PictureItem>(dialog, picture).watchMouse();
        EXPECT_EQ(told([&] { user::moveMouse(dialog, picture, 4, 5); }), "mouse 512 23 4 5");
        EXPECT_EQ(told([&] { user::pressMouse(dialog, picture, 3, 2); }), "mouse 513 23 3 2");
    });
}

TEST_F(WindowSystemTest, HelpThatIsNotThereIsNotShown) {
    EXPECT_FALSE(windows().showHelp(nullptr, u"no-such-help.hlp", 800));
}

TEST_F(WindowSystemTest, RefusesBrokenTemplates) {
    const auto isRefused = [&](std::span<const std::byte> bytes) {
        return windows().runModal(bytes, m_resources, nullptr, m_recorder) == -1 &&
               windows().createModeless(bytes, m_resources, nullptr, m_recorder) == nullptr;
    };
    const auto whole = sampleTemplate();
    EXPECT_TRUE(isRefused(std::span(whole).first(whole.size() - 3)));
    EXPECT_TRUE(isRefused(TemplateBuilder(u"").add(1, u"NoSuchClass", 0, {}).build()));
    EXPECT_EQ(m_recorder.log, "");
}

} // namespace
} // namespace zent::test
