#include "platform/LockedFile.h"

#include <cerrno>

#include <sys/stat.h>

#include "ocore/Stock/MediaPreferences.h"
#include "support/OrdoDocument.h"

namespace {

int injectedError = 0; // what the next calls of stat() fail with; 0 for none

} // namespace

// The linker puts these in the place of the system's (--wrap).
extern "C" {
int __real_stat(const char* path, struct stat* status);  // NOLINT
int __wrap_stat(const char* path, struct stat* status) { // NOLINT
    if (injectedError != 0) {
        errno = injectedError;
        return -1;
    }
    return __real_stat(path, status);
}
}

namespace zent::test {
namespace {

using namespace platform;

namespace fs = std::filesystem;

bool replace(const CXString& path, std::string_view content) {
    const auto file = LockedFile::lock(path);
    return file != nullptr && file->replace(std::as_bytes(std::span(content)));
}

mode_t modesOf(const fs::path& path) {
    struct stat status = {};
    EXPECT_EQ(__real_stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

TEST(PosixLockedFile, FollowsLinksAndKeepsModes) {
    const ScratchFolder folder;
    fs::create_directory(folder.path() / "sub");
    fs::create_symlink("sub/there", folder.path() / "relative");
    fs::create_symlink(folder.path() / "relative", folder.path() / "absolute");
    for (const char* const content : {"new", "replaced"}) { // the first time the link leads nowhere
        EXPECT_TRUE(replace(folder.file("absolute"), content));
        EXPECT_EQ(folder.read("sub/there"), content);
        EXPECT_TRUE(fs::is_symlink(folder.path() / "relative"));
        EXPECT_TRUE(fs::is_symlink(folder.path() / "absolute"));
        fs::permissions(folder.path() / "sub" / "there", fs::perms(0640));
    }
    EXPECT_EQ(modesOf(folder.path() / "sub" / "there"), 0640U);
    EXPECT_TRUE(replace(folder.file("absolute"), "again"));
    EXPECT_EQ(modesOf(folder.path() / "sub" / "there"), 0640U);

    const mode_t before = umask(027);
    EXPECT_TRUE(replace(folder.file("first"), ""));
    EXPECT_EQ(modesOf(folder.path() / "first"), 0640U) << "as any new file";
    umask(before);
}

TEST(PosixLockedFile, NamesMayBeAsLongAsTheSystemTakesThem) {
    const ScratchFolder folder;
    const std::string name(255, 'l');
    EXPECT_TRUE(replace(folder.file(name), "x"));
    EXPECT_EQ(folder.read(name), "x");
}

TEST(PosixLockedFile, WritesThroughNoPlantedLink) {
    const ScratchFolder folder;
    folder.write("victim", "untouched");
    fs::create_symlink("victim", folder.path() / ".a.zent-new");
    EXPECT_TRUE(replace(folder.file("a"), "mine"));
    fs::create_symlink("victim", folder.path() / ".b.zent-lock");
    EXPECT_FALSE(replace(folder.file("b"), "mine"));
    EXPECT_EQ(folder.read("victim"), "untouched");
    EXPECT_FALSE(fs::is_symlink(folder.path() / "a"));
}

TEST(PosixLockedFile, WhatCantBeToldIsntTakenForMissing) {
    useResourceLibrary();
    const ScratchFolder folder;
    folder.write("omedpref.omp", "<omediapref/>");
    const CXString name(folder.path().c_str());
    for (const int error : {EACCES, EIO, ESTALE, ELOOP, ENOTDIR}) {
        const auto file = LockedFile::lock(folder.file("omedpref.omp"));
        ASSERT_TRUE(file);
        injectedError = error;
        EXPECT_EQ(getFileKind(folder.file("omedpref.omp")), FileKind::unknown);
        EXPECT_FALSE(file->replace({}));
        EXPECT_EQ(errno, error);
        EXPECT_EQ(ordoFailure([&] { MediaPreferences preferences(name); }).substr(0, 3), "15:");
        injectedError = 0;
        EXPECT_EQ(folder.read("omedpref.omp"), "<omediapref/>");
    }
    fs::create_symlink("loop", folder.path() / "loop");
    EXPECT_EQ(getFileKind(folder.file("loop")), FileKind::unknown);
    EXPECT_FALSE(LockedFile::lock(folder.file("loop")));
}

} // namespace
} // namespace zent::test
