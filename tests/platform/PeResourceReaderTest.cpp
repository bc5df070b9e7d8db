#include "platform/PeResourceReader.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "ocore/Resources/ByteBuffer.h"
#include "platform/Files.h"
#include "platform/PeImage.h"
#include "platform/ResourceModule.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

using File = std::vector<std::uint8_t>;

std::optional<PeResourceReader> open(const File& file) {
    return PeResourceReader::open(std::as_bytes(std::span(file)));
}

std::string text(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// The bytes of a resource as a text; "-" if not found, "broken" if found and out of reach.
std::string find(const PeResourceReader& reader, std::uint32_t type, std::uint32_t id) {
    bool isListed = false;
    const auto found = reader.findResource(type, id, &isListed);
    return found ? text(*found) : isListed ? "broken" : "-";
}

std::u16string findString(const PeResourceReader& reader, std::uint32_t id) {
    const auto bytes = reader.findString(id);
    return std::u16string(ByteBuffer(bytes.data(), bytes.size()).getAsString().view());
}

PeImage sample(bool is64Bit) {
    PeImage image(is64Bit);
    image.addStrings(1, {{0, u"zero"}, {7, u"seven"}, {15, u"fifteen"}}, 0x409);
    image.addStrings(727, {{11619, u"title"}});
    image.add(10, 5, 0x409, {'f', 'i', 'r', 's', 't'});
    image.add(10, 5, 0x407, {'a', 'n', 'y'});
    image.add(10, 6, 0x407, {'o', 't', 'h', 'e', 'r'});
    image.add(10, 6, 0, {'n', 'e', 'u', 't', 'r', 'a', 'l'});
    image.add(10, 7, 0, {});
    image.add(3, 2, 0, {'i', 'c', 'o', 'n'});
    image.add(14, 100, 0, {0, 0, 1, 0, 1, 0, 32, 32, 0, 0, 1, 0, 8, 0, 4, 0, 0, 0, 2, 0});
    image.add(14, 101, 0, {0, 0, 1, 0, 0, 0});
    return image;
}

TEST(PeResourceReader, FindsResourcesInBothFormats) {
    for (const bool is64Bit : {false, true}) {
        const File file = sample(is64Bit).build();
        const auto reader = open(file);
        ASSERT_TRUE(reader);
        EXPECT_EQ(find(*reader, 10, 5), "any") << "the first of its languages";
        EXPECT_EQ(find(*reader, 10, 6), "neutral");
        EXPECT_EQ(find(*reader, 10, 7), "");
        EXPECT_EQ(find(*reader, 10, 8), "-");
        EXPECT_EQ(find(*reader, 5, 5), "-");
        EXPECT_EQ(find(*reader, 10, 0x80000005), "-");
        EXPECT_EQ(findString(*reader, 0), u"zero");
        EXPECT_EQ(findString(*reader, 7), u"seven");
        EXPECT_EQ(findString(*reader, 15), u"fifteen");
        EXPECT_EQ(findString(*reader, 11619), u"title");
        for (const std::uint32_t none : {1U, 16U, 11618U, 11620U, 65535U, 0xFFFFFFFFU}) {
            EXPECT_EQ(findString(*reader, none), u"") << none;
        }
        EXPECT_EQ(text(reader->findIcon(100).value()), "icon");
        EXPECT_FALSE(reader->findIcon(101)) << "a group without an image";
        EXPECT_FALSE(reader->findIcon(2)) << "an image, but no group";
    }
}

TEST(PeResourceReader, RefusesFilesThatAreBrokenAtTheTop) {
    const PeImage image = sample(true);
    const File whole = image.build();
    constexpr std::size_t countOfSections = PeImage::coffHeader + 2;
    constexpr std::size_t sizeOfOptionalHeader = PeImage::coffHeader + 16;
    const std::size_t countOfDirectories = image.directories() - 4;
    const std::size_t resourceDirectory = image.directories() + 16;
    const std::size_t sizeInFile = image.sectionHeader() + 16;
    const std::size_t placeInFile = image.sectionHeader() + 20;
    const auto endOfSection =
        PeImage::resourceAddress + static_cast<std::uint32_t>(whole.size()) - PeImage::resources;
    for (const auto& [what, put, place, value] :
         Rows<const char*, decltype(&put16), std::size_t, std::uint32_t>{
             {"no DOS signature", put16, 0, 0x5A4E},
             {"PE header outside", put32, 0x3C, 0xFFFFFFF0},
             {"no PE signature", put32, 0x3C, 0x44},
             {"unknown format", put16, PeImage::optionalHeader, 0x107},
             {"optional header too short for the directory", put16, sizeOfOptionalHeader, 112 + 23},
             {"optional header up to the end", put16, sizeOfOptionalHeader, 0xFFFF},
             {"too few directories", put32, countOfDirectories, 2},
             {"no resource directory", put32, resourceDirectory, 0},
             {"resource directory in no section", put32, resourceDirectory, 0xFFFFFFFF},
             {"resource directory at the section's end", put32, resourceDirectory,
              endOfSection - 15},
             {"more sections than fit", put16, countOfSections, 0xFFFF},
             {"no section", put16, countOfSections, 0},
             {"section outside the file", put32, placeInFile, 0xFFFFFF00},
             {"section empty in the file", put32, sizeInFile, 0},
         }) {
        File file = whole;
        put(file, place, value);
        EXPECT_FALSE(open(file)) << what;
    }
    File tooLong = whole;
    put32(tooLong, image.sectionHeader() + 8, 0xFFFFFFFF);
    put32(tooLong, sizeInFile, 0xFFFFFFFF);
    EXPECT_FALSE(open(tooLong)) << "section longer than the file";
}

TEST(PeResourceReader, FindsNothingWhereTheTreeIsBroken) {
    PeImage image;
    image.add(10, 5, 0, {'c', 'o', 'n', 't', 'e', 'n', 't'});
    // The tree of one resource: three directories of one entry each, then the data entry.
    constexpr std::uint32_t type = PeImage::resources + 16;
    constexpr std::uint32_t number = type + 24;
    constexpr std::uint32_t language = number + 24;
    constexpr std::uint32_t data = language + 8;
    constexpr std::uint32_t directory = 0x80000000;
    for (const auto& [what, place, value, found] :
         Rows<const char*, std::size_t, std::uint32_t, const char*>{
             {"nothing", 0, 0x5A4D, "content"},
             {"another type", type, 11, "-"},
             {"a type's name in place of its number", type, directory | 10, "-"},
             {"a type that leads to data", type + 4, 72, "-"},
             {"a type that leads outside", type + 4, directory | 0x7FFFFFFF, "-"},
             {"a type that leads back to the root", type + 4, directory, "-"},
             {"a number that leads to data", number + 4, 72, "-"},
             {"a number that leads to itself", number + 4, directory | 24, "-"},
             {"a number that leads to the section's end", number + 4, directory | 95, "-"},
             {"a language that leads to a directory", language + 4, directory | 48, "-"},
             {"a language that leads outside", language + 4, 0x7FFFFFFF, "broken"},
             {"a language that leads to half an entry", language + 4, 91, "broken"},
             {"data in no section", data, 0x10, "broken"},
             {"data behind the section", data, PeImage::resourceAddress + 96, "broken"},
             {"data at the last address", data, 0xFFFFFFFF, "broken"},
             {"data longer than the section", data + 4, 9, "broken"},
             {"data of the largest size", data + 4, 0xFFFFFFFF, "broken"},
             {"counts that run out of the section", PeImage::resources + 12, 0xFFFFFFFF, "-"},
         }) {
        File file = image.build();
        put32(file, place, value);
        const auto reader = open(file);
        ASSERT_TRUE(reader) << what;
        EXPECT_EQ(find(*reader, 10, 5), found) << what;
    }
}

TEST(PeResourceReader, FindsNoStringThatRunsOutOfItsBlock) {
    for (const auto& [length, block] : Rows<std::uint32_t, std::vector<std::uint8_t>>{
             {0, {}},
             {0, {1}},
             {0, {1, 0}},
             {0, {1, 0, 'a'}},
             {0, {0xFF, 0xFF, 'a', 0}},
             {1, {1, 0, 'a', 0}},
         }) {
        PeImage image;
        image.add(6, 1, 0, block);
        image.add(6, 2, 0, {'o', 'u', 't', 's', 'i', 'd', 'e', '!'});
        const File file = image.build();
        const auto reader = open(file);
        ASSERT_TRUE(reader);
        EXPECT_EQ(findString(*reader, 0).size(), length) << block.size();
        EXPECT_EQ(findString(*reader, 1), u"");
        EXPECT_EQ(findString(*reader, 15), u"");
    }
}

TEST(PeResourceReader, SurvivesEachCutAndEachChangedByte) {
    const File whole = sample(false).build();
    const auto readAll = [](const File& file) {
        std::size_t total = 0;
        if (const auto reader = open(file)) {
            for (const std::uint32_t type : {3U, 6U, 10U, 14U}) {
                for (const std::uint32_t id : {1U, 2U, 5U, 6U, 7U, 100U, 101U, 727U}) {
                    total += find(*reader, type, id).size();
                }
            }
            total += reader->findString(7).size() + reader->findString(11619).size();
            total += reader->findIcon(100).value_or(std::span<const std::byte>()).size();
        }
        return total;
    };
    const std::size_t all = readAll(whole);
    for (auto end = whole.begin(); end != whole.end(); ++end) {
        EXPECT_LE(readAll(File(whole.begin(), end)), all);
    }
    for (std::size_t i = 0; i < whole.size(); ++i) {
        for (const std::uint8_t value : {std::uint8_t{0}, std::uint8_t{0x7F}, std::uint8_t{0xFF}}) {
            File changed = whole;
            changed[i] = value;
            EXPECT_LE(readAll(changed), 64 * whole.size());
        }
    }
}

/// The reader and the system's own way to a resource library agree; on Windows that is the loader.
TEST(PeResourceReader, AgreesWithTheSystemOnTheResourceLibrary) {
    const CXString program(getModulePath());
    const CXString library = program.left(program.findLast(pathSeparator) + 1) + u"zenres27.dll";
    std::ifstream stream(std::filesystem::path(library.view()), std::ios::binary);
    const File file(std::istreambuf_iterator<char>(stream), {});
    const auto reader = open(file);
    ASSERT_TRUE(reader);
    std::uint32_t error = 0;
    const auto module = ResourceModule::load(library, error);
    ASSERT_TRUE(module) << error;
    int count = 0;
    for (std::uint32_t id = 0; id < 0x10000; ++id) {
        char16_t buffer[1024];
        const std::int32_t length = module->loadString(id, buffer, 1024);
        ASSERT_EQ(findString(*reader, id),
                  std::u16string_view(buffer, static_cast<std::size_t>(length)))
            << id;
        count += length > 0 ? 1 : 0;
    }
    EXPECT_GE(count, 551);
    for (std::uint32_t type = 1; type <= 24; ++type) {
        for (std::uint32_t id = 1; id < 1000; ++id) {
            ResourceModule::Failure failure = {};
            const auto bytes = module->findResource(id, type, failure);
            const std::string expected =
                failure == ResourceModule::Failure::none ? text(bytes) : "-";
            ASSERT_EQ(find(*reader, type, id), expected) << type << ' ' << id;
        }
    }
}

} // namespace
} // namespace zent::test
