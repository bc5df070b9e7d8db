#include <map>

#include "platform/DialogTemplate.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using platform::DialogTemplate;
using Item = DialogTemplate::Item;

constexpr std::uint16_t button = 0x80;
constexpr std::uint16_t edit = 0x81;
constexpr std::uint16_t label = 0x82;
constexpr std::uint32_t tabStop = 0x00010000;

bool isOf(const Item& item, std::uint16_t windowClass) {
    return item.windowClass == DialogTemplate::Name(windowClass);
}
bool isGroup(const Item& item) { return isOf(item, button) && (item.style & 0xF) == 7; }

std::u16string titleOf(const Item& item) {
    const auto* const title = std::get_if<std::u16string>(&item.title);
    return title != nullptr ? *title : std::u16string();
}

char16_t mnemonicOf(const Item& item) {
    const std::u16string title = titleOf(item);
    const std::size_t mark = title.find(u'&');
    return mark == std::u16string::npos ? u'\0' : static_cast<char16_t>(title[mark + 1] | 0x20);
}

bool overlap(const DialogTemplate::Place& a, const DialogTemplate::Place& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

/// The two that take turns: a page has a box for the account, or a button.
bool takeTurns(const Item& a, const Item& b) {
    const auto isTurn = [](const Item& item) {
        return item.id == IDC_JOB_ACCOUNT || item.id == IDC_JOB_ACCOUNT_LABEL ||
               item.id == IDC_ACCOUNT_BUTTON;
    };
    return isTurn(a) && isTurn(b);
}

class DialogTemplatesTest : public testing::TestWithParam<std::uint32_t> {
protected:
    DialogTemplatesTest() {
        useResourceLibrary();
        const ResourceLibrary library;
        const ResourceData data = library.loadDialog(GetParam());
        m_dialog = *DialogTemplate::read(data.getBytes().bytes());
    }

    DialogTemplate m_dialog;
};

TEST_P(DialogTemplatesTest, ItemsLieApartWithinTheMargins) {
    constexpr std::int32_t margin = 7;
    for (const Item& item : m_dialog.items) {
        SCOPED_TRACE(item.id);
        EXPECT_GE(item.place.x, margin);
        EXPECT_GE(item.place.y, isGroup(item) ? margin - 3 : margin);
        EXPECT_LE(item.place.x + item.place.width, m_dialog.place.width - margin);
        EXPECT_LE(item.place.y + item.place.height, m_dialog.place.height - margin);
        for (const Item& other : m_dialog.items) {
            const bool mayOverlap = isGroup(item) || isGroup(other) || takeTurns(item, other);
            if (&item != &other && !mayOverlap) {
                EXPECT_NE(item.id, other.id);
                EXPECT_FALSE(overlap(item.place, other.place)) << other.id;
            }
        }
    }
}

TEST_P(DialogTemplatesTest, TheKeyboardGoesFromTopToBottomAndEachLetterToOnePlace) {
    std::map<char16_t, const Item*> mnemonics;
    const Item* before = nullptr;
    for (const Item& item : m_dialog.items) {
        SCOPED_TRACE(item.id);
        if (const char16_t letter = mnemonicOf(item)) {
            const auto [known, isNew] = mnemonics.emplace(letter, &item);
            EXPECT_TRUE(isNew || takeTurns(*known->second, item)) << known->second->id;
        }
        const bool isBox = isOf(item, edit) && (item.style & 0x0800) == 0;
        EXPECT_TRUE(!isBox || (before != nullptr && isOf(*before, label) && mnemonicOf(*before)));
        EXPECT_EQ(isBox, isBox && (item.style & tabStop) != 0);
        before = &item;
    }
    std::int32_t top = 0;
    for (const Item& item : m_dialog.items) {
        if ((item.style & tabStop) != 0 && !(isOf(item, edit) && (item.style & 0x0800) != 0)) {
            EXPECT_GE(item.place.y, top) << item.id;
            top = item.place.y;
        }
    }
}

// A letter of the dialog's font is less than four units wide on average.
TEST_P(DialogTemplatesTest, TextsHaveRoomForLongerLanguages) {
    constexpr std::int32_t unitsPerLetter = 4;
    for (const Item& item : m_dialog.items) {
        if (isOf(item, label) || isOf(item, button)) {
            const auto letters = static_cast<std::int32_t>(titleOf(item).size());
            EXPECT_GE(item.place.width * 10, letters * unitsPerLetter * 12) << item.id;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, DialogTemplatesTest,
                         testing::Values(IDD_CUSTOM_VALUE, IDD_JOB_NOTES, IDD_ACCOUNT,
                                         IDD_TICKET_CHECK));

} // namespace
} // namespace zent::test
