#include <map>

#include "platform/PeImage.h"
#include "platform/ResourceType.h"
#include "platform/SampleDialog.h"
#include "platform/win32/EditFilter.h"
#include "platform/win32/ResourceImages.h"
#include "support/DialogUser.h"
#include "support/LibraryTesting.h"
#include "support/OpenDialog.h"
#include "support/TemplateBuilder.h"

// What is to be seen of a dialog from outside the port, where it is made of real windows.

namespace zent::test {
namespace {

using namespace platform;

constexpr std::uint16_t number = 10;
constexpr std::uint16_t duplex = 11;
constexpr std::uint16_t photo = 12;
constexpr std::uint16_t mark = 13;
constexpr std::uint16_t drawing = 14;

class Win32WindowSystemTest : public testing::Test {
protected:
    static WindowSystem& windows() { return *WindowSystem::find(); }

    static HWND itemOf(WindowHandle dialog, int item) {
        return GetDlgItem(static_cast<HWND>(dialog), item);
    }

    static std::vector<std::byte> sample() {
        constexpr std::uint32_t stop = TemplateBuilder::visible | TemplateBuilder::tabStop;
        using T = TemplateBuilder;
        return T(u"Sample")
            .add(number, T::edit, stop, {0, 0, 40, 12})
            .add(duplex, T::button, stop | BS_AUTOCHECKBOX, {0, 20, 40, 12}, u"Duplex")
            .add(photo, T::label, T::visible | SS_BITMAP, {50, 0, 20, 20},
                 std::uint16_t{redPicture})
            .add(mark, T::label, T::visible | SS_ICON, {80, 0, 20, 20}, std::uint16_t{twoSizes})
            .add(drawing, T::label, T::visible, {110, 0, 20, 20})
            .build();
    }

    SampleResources m_resources;
    Recorder m_procedure;
};

TEST_F(Win32WindowSystemTest, WindowsKeepWhatStandsBehindThem) {
    const auto filtered = std::make_shared<int>();
    LONG_PTR own = 0;
    m_procedure.onInit = [&](WindowHandle dialog) {
        EXPECT_NE(GetWindowLongPtrW(static_cast<HWND>(dialog), GWLP_USERDATA), 0);
        own = GetWindowLongPtrW(itemOf(dialog, number), GWLP_WNDPROC);
        at<TextItem>(dialog, number).setFilter([filtered](auto, auto, auto, auto) { return true; });
        at<PictureItem>(dialog, drawing).setBitmap(redPicture, true);
        at(dialog, number).setProperty(u"SC_TYPE", 2);
        at<TextItem>(dialog, number).setLimit(7);
    };
    m_procedure.onDestroy = [&](WindowHandle dialog) {
        const HWND edit = itemOf(dialog, number);
        EXPECT_NE(GetWindowLongPtrW(edit, GWLP_WNDPROC), own);
        EXPECT_EQ(reinterpret_cast<LONG_PTR>(GetPropW(edit, L"SC_WND")), own);
        EXPECT_NE(GetPropW(edit, L"SC_THS"), nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(GetPropW(edit, L"SC_TYPE")), 2U);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(GetPropW(edit, L"SC_MAX")), 7U);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(GetPropW(itemOf(dialog, drawing), L"SC_ID")),
                  redPicture);
    };
    m_procedure.answer = 5;
    user::onceOpen([&](WindowHandle dialog) {
        EXPECT_EQ(dialogOf(dialog).send(32774, 0, 0), 5);
        EXPECT_EQ(GetWindowLongPtrW(static_cast<HWND>(dialog), DWLP_MSGRESULT), 5);
        dialogOf(dialog).end(1);
    });
    EXPECT_EQ(windows().runModal(sample(), m_resources, nullptr, m_procedure), 1);
    EXPECT_EQ(filtered.use_count(), 1);
}

/// What the system refuses is told.
TEST_F(Win32WindowSystemTest, NothingStandsBeforeAWindowThatIsGone) {
    const HWND edit = CreateWindowExW(0, L"Edit", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                      nullptr, nullptr);
    EXPECT_TRUE(win32::SubclassedItem::attach(std::make_unique<win32::EditFilter>(edit)));
    DestroyWindow(edit);
    EXPECT_FALSE(win32::SubclassedItem::attach(std::make_unique<win32::EditFilter>(edit)));
}

/// Such as the application's, which doesn't know of the dialog.
TEST_F(Win32WindowSystemTest, ModelessDialogsHaveTheirKeysInAnyLoop) {
    const WindowHandle dialog =
        windows().createModeless(sample(), m_resources, nullptr, m_procedure)->getHandle();
    EXPECT_EQ(user::focused(dialog), number);
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    EXPECT_EQ(user::focused(dialog), duplex);
    dialogOf(dialog).destroy();
}

TEST_F(Win32WindowSystemTest, PicturesOfTheTemplateAreOfItsResources) {
    m_procedure.onInit = [&](WindowHandle dialog) {
        EXPECT_NE(SendMessageW(itemOf(dialog, photo), STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
        EXPECT_NE(SendMessageW(itemOf(dialog, mark), STM_GETIMAGE, IMAGE_ICON, 0), 0);
        dialogOf(dialog).end(1);
    };
    EXPECT_EQ(windows().runModal(sample(), m_resources, nullptr, m_procedure), 1);
}

TEST_F(Win32WindowSystemTest, AsksForFiles) {
    const ScratchFolder folder;
    folder.write("there.xml", "");
    // With its drive, as the answers are.
    const auto path = [&](const char* name) {
        return std::filesystem::absolute(folder.path() / name).make_preferred().u16string();
    };
    const auto asked = [&](bool isToOpen, const char* proposed, user::Key key) {
        WindowSystem::FileQuestion question;
        question.title = u"Tickets";
        question.filterName = u"Job tickets";
        question.filterPattern = u"*.xml";
        question.extension = u"xml";
        question.fileName = path(proposed);
        user::onceOpen([&](WindowHandle dialog) {
            EXPECT_EQ(windows().getCaption(dialog), question.title);
            user::press(dialog, key);
        });
        const auto file = isToOpen ? windows().askForOpenFile(nullptr, question)
                                   : windows().askForSaveFile(nullptr, question);
        return file.value_or(u"none");
    };
    EXPECT_EQ(asked(true, "there.xml", user::Key::enter), path("there.xml"));
    EXPECT_EQ(asked(true, "there.xml", user::Key::escape), u"none");
    EXPECT_EQ(asked(false, "new", user::Key::enter), path("new.xml"));
    EXPECT_EQ(asked(false, "new", user::Key::escape), u"none");
}

TEST_F(Win32WindowSystemTest, BrokenPicturesAreNone) {
    using Image = std::vector<std::uint8_t>;
    const auto change = [](Image bytes, std::size_t place, std::uint32_t value) {
        put32(bytes, place, value);
        return bytes;
    };
    const Image whole = m_resources.images.at({redPicture, resourceType::bitmap});
    for (const auto& [fault, bytes] : Rows<const char*, Image>{
             {"empty", {}},
             {"cut in the header", {whole.begin(), whole.begin() + 20}},
             {"cut in the pixels", {whole.begin(), whole.end() - 1}},
             {"header beyond the end", change(whole, 0, 0xFFFFFFF0)},
             {"short header", change(whole, 0, 12)},
             {"too wide", change(whole, 4, 0x7FFFFFFF)},
             {"lowest height", change(whole, 8, 0x80000000)},
             {"too high", change(whole, 8, 9)},
             {"compressed", change(whole, 16, 1)},
             {"too many colours", change(whole, 32, 0x7FFFFFFF)},
         }) {
        m_resources.images[{redPicture, resourceType::bitmap}] = bytes;
        EXPECT_EQ(win32::createBitmap(m_resources, redPicture), nullptr) << fault;
    }
    put16(m_resources.images[{twoSizes, resourceType::iconGroup}], 4, 3); // more than there are
    EXPECT_EQ(win32::createIcon(m_resources, twoSizes, 16, 16), nullptr);
    EXPECT_EQ(win32::createIcon(m_resources, 999, 16, 16), nullptr);
}

} // namespace
} // namespace zent::test
