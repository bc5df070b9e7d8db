#pragma once

#include <concepts>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "ocore/Text/CXString.h"
#include "support/TestFile.h"

namespace zent::test {

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

    /// What the library has for a cell.
    struct Cell {
        Cell(const char* name, const CXString& text) : column(name), content(text.toNarrow()) {}
        Cell(const char* name, std::string text) : column(name), content(std::move(text)) {}
        template <typename Number>
        requires std::convertible_to<Number, std::int64_t> Cell(const char* name, Number number)
            : Cell(name, std::to_string(number)) {}
        template <typename Number>
        Cell(const char* name, const std::vector<Number>& numbers) : column(name) {
            for (const Number number : numbers) {
                content += (content.empty() ? "" : " ") + std::to_string(number);
            }
        }

        std::string column;
        std::string content;
    };
    void expect(std::initializer_list<Cell> cells) const;

private:
    std::map<std::string, std::string> m_cells;
};

/// A table of tests/expected/: a header line, then a line for each row, cells between tabs.
std::vector<ExpectedRow> readExpectedTable(const std::string& name);

} // namespace zent::test
