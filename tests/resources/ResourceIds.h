#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TestFile.h"

namespace zent::test {

/// The numbers of all ids by their names; a number has one name.
inline const std::map<std::string, std::int32_t>& idsByName() {
    static const std::map<std::string, std::int32_t> ids = [] {
        std::map<std::string, std::int32_t> read;
        std::set<std::int32_t> numbers;
        for (const std::string& line : split(readTestFile("../resources/ids.h"), '\n')) {
            const std::vector<std::string> words = split(line);
            if (words.size() == 3 && words[0] == "#define") {
                read[words[1]] = std::stoi(words[2]);
                EXPECT_TRUE(numbers.insert(read[words[1]]).second) << line;
            }
        }
        return read;
    }();
    return ids;
}

} // namespace zent::test
