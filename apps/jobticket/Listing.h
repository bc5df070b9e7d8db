#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

struct Options;

using Row = std::vector<std::string>;

/// Lays rows out in columns that are as wide as they have to be, one line a row. A cell that is
/// wider than most pushes the rest of its line to the right instead of widening the column. Texts
/// are made printable.
std::string layOut(std::vector<Row> rows);

/// A JSON value (RFC 8259) to be written for other programs. Text is UTF-8; the members of an
/// object stay in the order in which they were added.
class Json {
public:
    Json(std::string_view text);
    Json(const std::string& text) : Json(std::string_view(text)) {}
    Json(const char* text) : Json(std::string_view(text)) {}
    Json(bool flag) : m_text(flag ? "true" : "false") {}
    Json(std::int32_t number) : m_text(std::to_string(number)) {}
    Json(std::uint32_t number) : m_text(std::to_string(number)) {}
    static Json array() { return Json(Kind::array); }
    static Json object() { return Json(Kind::object); }

    /// Adds an element to an array.
    Json& add(Json element);
    /// Adds a member to an object; each name is given once.
    Json& add(std::string_view name, Json value);

    /// The text, in lines that a person can read as well; ends with a line end.
    std::string toText() const;

private:
    enum class Kind { scalar, array, object };

    explicit Json(Kind kind) : m_kind(kind) {}

    bool isFlat() const;
    void write(std::string& text, std::size_t depth) const;

    Kind m_kind = Kind::scalar;
    std::string m_text; // of a scalar, as it is written
    std::vector<std::string> m_names;
    std::vector<Json> m_values;
};

/// What a command lists, in three forms, of which only the one that its options ask for is made.
struct Listing {
    std::function<Json()> asJson;
    std::function<std::vector<Row>()> asTable; // a line a row, with tabs between the cells
    std::function<std::string()> asText;       // for people
};

void printListing(const Listing& listing, const Options& options);

} // namespace jobticket
