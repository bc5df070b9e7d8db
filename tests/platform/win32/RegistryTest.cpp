// The preference store where it is the Windows registry.

#include <windows.h>

#include "ocore/User/Registry.h"
#include "support/LibraryTesting.h"

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
    const Rows<const char16_t*, DWORD> rows{{u"text", 8}, {u"", 0}, {u"seven..", 14}};
    for (const auto& [text, bytes] : rows) {
        m_registry.setStringValue(u"a\\key", u"text", text);
        const HKEY key = openKey();
        DWORD type = 0;
        DWORD size = 99;
        EXPECT_EQ(RegQueryValueExW(key, L"text", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
        EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
        EXPECT_EQ(size, bytes) << "without a terminator";
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

} // namespace
} // namespace zent::test
