// The preference store where it is the Windows registry.

#include <windows.h>

#include "ocore/User/Registry.h"
#include "support/LibraryTesting.h"
#include "support/ScratchUser.h"

namespace zent::test {
namespace {

class WindowsRegistryTest : public testing::Test {
protected:
    const ScratchUser m_scratch;
    const Registry m_registry{};

    static HKEY openKey() {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"a\\key", 0, nullptr, 0, KEY_ALL_ACCESS,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        return key;
    }
};

TEST_F(WindowsRegistryTest, StoresWhatOtherProgramsFind) {
    const struct {
        const char16_t* text;
        DWORD size;
    } rows[] = {{u"text", 8}, {u"", 0}, {u"seven..", 14}};
    for (const auto& row : rows) {
        m_registry.setStringValue(u"a\\key", u"text", row.text);
        const HKEY key = openKey();
        DWORD type = 0;
        DWORD size = 99;
        EXPECT_EQ(RegQueryValueExW(key, L"text", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
        EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
        EXPECT_EQ(size, row.size) << "without a terminator";
        RegCloseKey(key);
    }
    m_registry.setLongValue(u"a\\key", u"number", -2);
    const HKEY key = openKey();
    DWORD type = 0;
    DWORD number = 0;
    DWORD size = sizeof(number);
    EXPECT_EQ(
        RegQueryValueExW(key, L"number", nullptr, &type, reinterpret_cast<BYTE*>(&number), &size),
        ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(number, 0xFFFFFFFEU);
    RegCloseKey(key);
}

TEST_F(WindowsRegistryTest, ReadsWhatOtherProgramsStored) {
    const HKEY key = openKey();
    const wchar_t text[] = L"terminated";
    RegSetValueExW(key, L"text", 0, REG_SZ, reinterpret_cast<const BYTE*>(text), sizeof(text));
    RegCloseKey(key);
    EXPECT_EQ(m_registry.getStringValue(u"a\\key", u"text", u"default"), u"terminated");
    EXPECT_EQ(m_registry.getStringValue(u"A\\KEY", u"TEXT", u"default"), u"terminated");
}

TEST_F(WindowsRegistryTest, SaysWhatItCannotStore) {
    const std::u16string tooLong(300, u'k');
    const CXString key(tooLong);
    EXPECT_EQ(m_registry.getLongValue(key, u"name", 5), 5) << "a key out of reach isn't there";
    const std::string message =
        raised<RegistryRequestException>([&] { m_registry.setLongValue(key, u"name", 5); });
    EXPECT_EQ(message.find("Registry::setValue(): Call to RegCreateKeyEx(kkk"), 0U) << message;
    EXPECT_NE(message.find(") failed with result of "), std::string::npos) << message;
    EXPECT_EQ(message.find("result of 0 "), std::string::npos) << message;
}

} // namespace
} // namespace zent::test
