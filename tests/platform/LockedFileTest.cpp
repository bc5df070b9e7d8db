#include "platform/LockedFile.h"

#include <thread>

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

bool replace(const CXString& path, std::string_view content) {
    const auto file = LockedFile::lock(path);
    return file != nullptr && file->replace(std::as_bytes(std::span(content)));
}

std::size_t countFiles(const ScratchFolder& folder) {
    return static_cast<std::size_t>(
        std::ranges::distance(std::filesystem::directory_iterator(folder.path())));
}

TEST(LockedFile, PutsANewFileInTheOldOnesPlace) {
    const ScratchFolder folder;
    for (const std::string name : {"a", "a b.xml"}) {
        for (const std::string& content : {std::string("longer than the next"), std::string("x"),
                                           std::string(), std::string(300'000, '\0')}) {
            EXPECT_TRUE(replace(folder.file(name), content)) << name;
            EXPECT_EQ(folder.read(name), content);
        }
    }
    EXPECT_EQ(countFiles(folder), 2U) << "nothing is left beside them";
}

TEST(LockedFile, IsHeldByOneAtATime) {
    const ScratchFolder folder;
    auto first = LockedFile::lock(folder.file("a"));
    ASSERT_TRUE(first);
    EXPECT_TRUE(LockedFile::lock(folder.file("b"))) << "another file is another lock";
    std::thread second([&] { EXPECT_TRUE(replace(folder.file("a"), "second")); });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_TRUE(first->replace(std::as_bytes(std::span("first", 5))));
    EXPECT_EQ(folder.read("a"), "first");
    first.reset();
    second.join();
    EXPECT_EQ(folder.read("a"), "second");
    EXPECT_EQ(countFiles(folder), 1U);
}

TEST(LockedFile, WhatAKilledWriterLeftGoes) {
    const ScratchFolder folder;
    folder.write(".a.zent-lock", "");
    folder.write(".a.zent-new", "half of");
    EXPECT_TRUE(replace(folder.file("a"), "all of it"));
    EXPECT_EQ(folder.read("a"), "all of it");
    EXPECT_EQ(countFiles(folder), 1U);
}

TEST(LockedFile, FailuresLeaveEverythingAsItWas) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_FALSE(replace(folder.file("folder"), "x"));
    EXPECT_FALSE(replace(folder.file("no such folder/a"), "x"));
    EXPECT_EQ(countFiles(folder), 1U);
    folder.write(".a.zent-lock", "somebody's own");
    EXPECT_TRUE(replace(folder.file("a"), "x"));
    EXPECT_EQ(folder.read(".a.zent-lock"), "somebody's own");
}

} // namespace
} // namespace zent::test
