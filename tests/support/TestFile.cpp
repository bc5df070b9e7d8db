#include "support/TestFile.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace zent::test {

std::string readTestFile(const std::string& path) {
    const char* folder = std::getenv("ZENT_TEST_DATA");
    if (folder == nullptr) {
        throw std::runtime_error("ZENT_TEST_DATA does not name the folder of the tests");
    }
    std::ifstream file(std::string(folder) + "/" + path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("can't read " + path);
    }
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, separator);) {
        if (!word.empty()) {
            words.push_back(word);
        }
    }
    return words;
}

} // namespace zent::test
