#include "expected/ExpectedTable.h"

#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>

namespace zent::test {
namespace {

/// Unlike split(), keeps empty cells.
std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells(1);
    for (const char c : line) {
        if (c == '\t') {
            cells.emplace_back();
        } else if (c != '\r') {
            cells.back() += c;
        }
    }
    return cells;
}

} // namespace

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

std::u16string ExpectedRow::wide(const std::string& column) const {
    const std::string& narrow = text(column);
    return {narrow.begin(), narrow.end()};
}

void ExpectedRow::expect(std::initializer_list<Cell> cells) const {
    for (const Cell& cell : cells) {
        EXPECT_EQ(cell.content, text(cell.column)) << cell.column;
    }
}

std::vector<ExpectedRow> readExpectedTable(const std::string& name) {
    std::vector<ExpectedRow> rows;
    std::vector<std::string> header;
    for (const std::string& line : split(readTestFile("expected/" + name), '\n')) {
        const std::vector<std::string> cells = cellsOf(line);
        if (header.empty()) {
            header = cells;
            continue;
        }
        if (cells.size() != header.size()) {
            throw std::runtime_error(name + " has an uneven line: " + line);
        }
        std::map<std::string, std::string> row;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            row[header[i]] = cells[i];
        }
        rows.emplace_back(std::move(row));
    }
    return rows;
}

} // namespace zent::test
