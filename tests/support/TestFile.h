#pragma once

#include <string>

namespace zent::test {

/// The content of a file; `path` is relative to the folder of the tests, which the environment
/// names in ZENT_TEST_DATA. A file that can't be read raises std::runtime_error.
std::string readTestFile(const std::string& path);

} // namespace zent::test
