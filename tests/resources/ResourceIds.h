#pragma once

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/Testing.h"

namespace zent::test {

/// The numbers of all ids by their names; tools/check-ids finds doubles.
inline const std::map<std::string, std::int32_t>& idsByName() {
    static const std::map<std::string, std::int32_t> ids = [] {
        std::map<std::string, std::int32_t> read;
        for (const std::string& line : split(readTestFile("../resources/ids.h"), '\n')) {
            const std::vector<std::string> words = split(line);
            if (words.size() == 3 && words[0] == "#define") {
                read[words[1]] = std::stoi(words[2]);
            }
        }
        return read;
    }();
    return ids;
}

} // namespace zent::test
