// What the library loads comes from its own folder or the system's, and from nowhere else.

#include "platform/win32/SystemLibrary.h"
#include "platform/win32/WideText.h"
#include "support/LibraryTesting.h"
#include "zent27.h"

namespace zent::test {
namespace {

using namespace platform;

/// The test program's own, with a separator.
std::wstring ownFolder() {
    const std::u16string path = getModulePath();
    return terminated(path.substr(0, path.rfind(pathSeparator) + 1));
}

void putCompanionsInto(const std::wstring& folder) {
    for (const wchar_t* const name : {L"ZENT27.dll", L"zenres27.dll", L"ordo-v02025.dtd"}) {
        EXPECT_TRUE(CopyFileW((ownFolder() + name).c_str(), (folder + name).c_str(), FALSE));
    }
}

TEST(WindowsSystemLibrary, IsTakenFromTheSystemsFolderAlone) {
    EXPECT_TRUE(SystemLibrary(L"userenv.dll").isLoaded());
    EXPECT_NE(SystemLibrary(L"netapi32.dll").find<FARPROC>("NetApiBufferFree"), nullptr);
    // The application's folder comes first for a bare name.
    const std::wstring planted = ownFolder() + L"zentplanted.dll";
    ASSERT_TRUE(CopyFileW((ownFolder() + L"zenres27.dll").c_str(), planted.c_str(), FALSE));
    EXPECT_FALSE(SystemLibrary(L"zentplanted.dll").isLoaded());
    EXPECT_TRUE(DeleteFileW(planted.c_str()));
}

/// Opens a session with the library of a folder.
ZentResult openSessionOf(const std::wstring& folder) {
    const HMODULE library = LoadLibraryW((folder + L"ZENT27.dll").c_str());
    EXPECT_NE(library, nullptr) << GetLastError();
    if (library == nullptr) {
        return 0;
    }
    const auto find = [library](const char* name) {
        return reinterpret_cast<void*>(GetProcAddress(library, name));
    };
    const auto open = reinterpret_cast<decltype(&fnOpenSession)>(find("fnOpenSession"));
    const auto close = reinterpret_cast<decltype(&fnCloseSession)>(find("fnCloseSession"));
    ZentSessionType session = nullptr;
    const ZentResult result = open(ZENT_INTERFACE_VERSION, 6, ZENT_PDL_MONOCHROME_PCL,
                                   ZENT_INSTRUCTIONS_BY_MODEL, 1, nullptr, 1, &session);
    if (result == ZENT_OK) {
        close(&session);
    }
    FreeLibrary(library);
    return result;
}

TEST(WindowsResources, AreTakenFromTheLibrarysFolderOrNotAtAll) {
    // A path of more than 260 units, each of whose folders has a library with resources. It stays
    // there: what was loaded can't be deleted before the process ends.
    std::wstring folder = L"\\\\?\\" + ownFolder() + L"OwnFolderTest\\";
    std::vector<std::wstring> folders;
    for (const wchar_t* const name : {L"", L"a\\", L"b\\"}) {
        folder += *name == L'\0' ? std::wstring() : std::wstring(150, *name) + L"\\";
        folders.push_back(folder);
        ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr) ||
                    GetLastError() == ERROR_ALREADY_EXISTS);
        putCompanionsInto(folder);
    }
    EXPECT_EQ(openSessionOf(folders.front()), ZENT_OK);
    EXPECT_EQ(openSessionOf(folders.back()), ZENT_ERR_RESOURCE_LIBRARY);
}

} // namespace
} // namespace zent::test
