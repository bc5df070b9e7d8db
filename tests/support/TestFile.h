#pragma once

#include <string>
#include <vector>

namespace zent::test {

/// The content of a file; `path` is relative to the folder of the tests, which the environment
/// names in ZENT_TEST_DATA. A file that can't be read raises std::runtime_error.
std::string readTestFile(const std::string& path);

/// The parts of a text between spaces (or another separator), without empty ones.
std::vector<std::string> split(const std::string& text, char separator = ' ');

} // namespace zent::test
