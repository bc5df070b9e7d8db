#include <cctype>
#include <filesystem>
#include <map>

#include "resources/ResourceIds.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

const char* const parts[] = {"dialogs",  "features", "media", "messages",
                             "printers", "sizes",    "values"};

/// The strings of one authored part, as rows of `id, "text"`; every fault is reported.
std::map<std::int32_t, std::string> readStrings(const std::string& part) {
    std::map<std::int32_t, std::string> strings;
    for (const std::string& line :
         split(readTestFile("../resources/strings-" + part + ".rc"), '\n')) {
        const auto begin = line.find_first_not_of(' ');
        if (begin == 0 || begin == std::string::npos || line[begin] == '/') {
            continue; // no row
        }
        const auto open = line.find('"');
        const auto close = line.rfind('"');
        if (open == std::string::npos || open == close) {
            ADD_FAILURE() << "no row of the string table: " << line;
            continue;
        }
        const std::int32_t id = idsByName().at(line.substr(begin, line.find(',') - begin));
        EXPECT_TRUE(strings.empty() || strings.rbegin()->first < id) << line << " out of order";
        strings[id] = line.substr(open + 1, close - open - 1);
    }
    return strings;
}

std::map<std::int32_t, std::string> readAllStrings() {
    std::map<std::int32_t, std::string> all;
    for (const char* part : parts) {
        for (const auto& [id, text] : readStrings(part)) {
            EXPECT_TRUE(all.emplace(id, text).second) << id << " stands twice";
        }
    }
    return all;
}

/// Texts that a value is put into, and their one specifier.
const std::map<std::int32_t, const char*> formats = {{IDS_TEXT_TOO_LONG, "%u"},
                                                     {IDS_CUSTOM_VALUE, "%s"}};

CXString fromUtf8(const std::string& text) {
    // A path takes UTF-8 on every system.
    return {std::filesystem::path(std::u8string(text.begin(), text.end())).u16string()};
}

/// Sentences end in a full stop, names don't.
bool isSentence(std::int32_t id) {
    const bool isAccountOrJobName = id >= IDS_ACCOUNT_MISSING && id <= IDS_TEXT_TOO_LONG;
    const bool isFailure = id == IDS_FAILURE || id == IDS_FAILURE_ADVICE ||
                           (id >= IDS_OUT_OF_MEMORY && id <= IDS_UNKNOWN_FAILURE_ADVICE);
    const bool isTitle =
        id == IDS_ACCOUNT_TITLE || id == IDS_JOB_NAME_TITLE || id == IDS_CALL_TITLE;
    return ((isAccountOrJobName || isFailure) && !isTitle) || id == IDS_REPAIR_NOTICE ||
           id == IDS_REPAIR_QUESTION || id == IDS_NOTHING_CHANGES;
}

TEST(StringTableTest, TextsFitForUsers) {
    for (auto [id, text] : readAllStrings()) {
        if (formats.contains(id)) {
            ASSERT_NE(text.find(formats.at(id)), std::string::npos) << text;
            text.replace(text.find(formats.at(id)), 2, "Name");
        }
        if (id == IDS_STOCK_OF_LIBRARY ||
            id == IDS_STOCK_OF_PRINTER) { // notes behind a name, such as " (library)"
            ASSERT_TRUE(text.starts_with(" (") && text.ends_with(')')) << text;
            text[2] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[2])));
            text = text.substr(2, text.size() - 3);
        }
        ASSERT_FALSE(text.empty()) << id;
        EXPECT_LE(text.size(), 255U) << id;
        EXPECT_EQ(text.find_first_of("\"\\\t%"), std::string::npos) << text;
        EXPECT_NE(text.front(), ' ') << text;
        EXPECT_NE(text.back(), ' ') << text;
        EXPECT_EQ(text.find("  "), std::string::npos) << text;
        const bool begins = std::isupper(static_cast<unsigned char>(text.front())) != 0 ||
                            std::isdigit(static_cast<unsigned char>(text.front())) != 0;
        EXPECT_TRUE(begins || text.starts_with("sRGB")) << text;
        EXPECT_EQ(text.back() == '.', isSentence(id)) << text;
    }
}

TEST(StringTableTest, EachIdHasItsText) {
    const std::map<std::int32_t, std::string> authored = readAllStrings();
    for (const auto& [name, id] : idsByName()) {
        EXPECT_TRUE(!name.starts_with("IDS_") || authored.contains(id)) << name;
    }
    for (const char16_t* fileName : {u"zenres37.dll", u"zenres27.dll"}) {
        useResourceLibrary(fileName);
        const ResourceLibrary library;
        for (const auto& [id, text] : authored) {
            EXPECT_EQ(library.getString(static_cast<std::uint32_t>(id)), fromUtf8(text)) << id;
        }
    }
}

} // namespace
} // namespace zent::test
