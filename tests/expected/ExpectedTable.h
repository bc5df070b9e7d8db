#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zent::test {

/// The content of a file; `path` is relative to the folder of the tests, which the environment
/// names in ZENT_TEST_DATA. A file that can't be read raises std::runtime_error.
std::string readTestFile(const std::string& path);

/// The words of a text between blanks (or another separator), without empty ones.
std::vector<std::string> split(const std::string& text, char separator = ' ');

/// One line of a table, its cells reached by the names in the header line.
class ExpectedRow {
public:
    explicit ExpectedRow(std::map<std::string, std::string> cells) : m_cells(std::move(cells)) {}

    const std::string& text(const std::string& column) const { return m_cells.at(column); }
    /// The cell as 16-bit text; all tables are ASCII.
    std::u16string wide(const std::string& column) const;
    std::int32_t number(const std::string& column) const { return std::stoi(text(column)); }
    /// The numbers of a cell that holds a list, in order.
    std::vector<std::int32_t> numbers(const std::string& column) const;

private:
    std::map<std::string, std::string> m_cells;
};

/// A table of tests/expected/: a header line, then a line for each row, cells between tabs.
std::vector<ExpectedRow> readExpectedTable(const std::string& name);

} // namespace zent::test
