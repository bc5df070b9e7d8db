// Hostile arguments of the program, which may come from other programs: assignments, with their
// paths and values, and the paths of reports. What it prints as JSON is read back.
//
// Input: a byte that says which, and a text; for JSON what a value is made of.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Assignment.h"
#include "Errors.h"
#include "FuzzInput.h"
#include "Listing.h"
#include "SameList.h"
#include "Session.h"
#include "Text.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "platform/Files.h"

namespace jobticket {

namespace {

using zent::fuzz::FuzzInput;
using zent::fuzz::require;

void useResourceLibraryOnce() {
    static const bool isSet = [] {
        const zent::CXString program(zent::platform::getModulePath());
        zent::ResourceLibrary::setPath(
            program.left(program.findLast(zent::platform::pathSeparator) + 1) + u"zenres27.dll");
        return true;
    }();
    require(isSet);
}

/// A refusal says why, in one line that steers no terminal.
template <typename Work>
void mayRefuse(const Work& work) {
    try {
        work();
    } catch (const ProgramError& error) {
        const std::string_view reason = error.what();
        require(!reason.empty());
        for (const char c : reason) {
            require(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
        }
    }
}

// Assignments

std::string toText(const FeaturePath& path) {
    std::string text;
    for (const PathStep& step : path) {
        text += (text.empty() ? "" : ".") + jobticket::toText(step);
    }
    return text;
}

void requireSensible(const Feature& feature, const Value& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        require(*number >= feature.getUnit().lowest);
        const std::string shown = withUnit(*number, feature.getUnit());
        const auto again =
            isLength(feature.getUnit()) ? parseValues(feature, shown) : std::vector<Value>{value};
        require(std::get<std::int32_t>(again.front()) == *number);
    } else if (const auto* range = std::get_if<Range>(&value)) {
        require(range->lower <= range->upper);
    } else if (const auto* density = std::get_if<DotDensity>(&value)) {
        require(density->crossFeed > 0 && density->feed > 0);
    } else if (const auto* size = std::get_if<Size>(&value)) {
        require(size->width > 0 && size->height > 0);
    } else {
        require(!std::get<std::u16string>(value).empty());
    }
}

void assign(const std::string& text) {
    for (const Assignment& assignment : parseAssignments(text)) {
        require(toText(parsePath(toText(assignment.path))) == toText(assignment.path));
        for (const Value& value : assignment.values) {
            requireSensible(assignment.path.back().feature, value);
        }
        hintAtMisspelling(assignment);
    }
}

/// Carries an assignment out on a ticket of its own, and takes it back.
void apply(const std::string& text) {
    static const Session session;
    Ticket ticket(session);
    for (const Assignment& assignment : parseAssignments(text)) {
        setValues(ticket, assignment.path, assignment.values);
        removeValues(ticket, assignment.path);
        const PathStep& step = assignment.path.front();
        require(assignment.path.size() > 1 || step.index || ticket.count(step.feature) == 0);
    }
}

// JSON

enum class Kind { text, number, flag, array, object };

struct Node {
    Kind kind = Kind::flag;
    std::u16string text; // a number or a flag, as it is written
    std::vector<std::u16string> names;
    std::vector<Node> members;

    bool operator==(const Node&) const = default;
};

std::u16string toUnits(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

std::u16string takeText(FuzzInput& input) {
    std::u16string text;
    for (const char byte : input.takeBytes()) {
        text += zent::fuzz::unitOf(static_cast<std::uint8_t>(byte));
    }
    return fromUtf8(toUtf8(text)); // without halves of surrogate pairs
}

constexpr int deepest = 20;

/// Takes a value, in the program's form and in ours.
Json take(FuzzInput& input, Node& node, int depth) {
    node.kind = static_cast<Kind>(input.takeByte() % (depth < deepest ? 5 : 3));
    if (node.kind == Kind::text) {
        node.text = takeText(input);
        return toUtf8(node.text);
    }
    if (node.kind == Kind::number) {
        const std::int32_t number = input.takeSigned();
        node.text = toUnits(std::to_string(number));
        return number;
    }
    if (node.kind == Kind::flag) {
        const bool flag = input.takeByte() % 2 == 0;
        node.text = flag ? u"true" : u"false";
        return flag;
    }
    Json made = node.kind == Kind::array ? Json::array() : Json::object();
    constexpr std::uint8_t mostMembers = 8;
    for (std::uint8_t left = input.takeByte() % mostMembers; left > 0; --left) {
        if (node.kind == Kind::object) {
            node.names.push_back(takeText(input));
        }
        Json member = take(input, node.members.emplace_back(), depth + 1);
        node.kind == Kind::array ? made.add(std::move(member))
                                 : made.add(toUtf8(node.names.back()), std::move(member));
    }
    return made;
}

/// Reads JSON (RFC 8259) as strictly as any reader may.
class Reader {
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    Node readAll() {
        Node node = read();
        skipSpace();
        require(m_rest.empty());
        return node;
    }

private:
    void skipSpace() {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size()));
    }
    bool takes(std::string_view token) {
        skipSpace();
        const bool isThere = m_rest.starts_with(token);
        m_rest.remove_prefix(isThere ? token.size() : 0);
        return isThere;
    }

    Node read() {
        Node node;
        if (takes("\"")) {
            return {Kind::text, readText(), {}, {}};
        }
        if (takes("{")) {
            node.kind = Kind::object;
            readMembers(node, "}");
        } else if (takes("[")) {
            node.kind = Kind::array;
            readMembers(node, "]");
        } else if (takes("true")) {
            node.text = u"true";
        } else if (takes("false")) {
            node.text = u"false";
        } else {
            node = {Kind::number, readNumber(), {}, {}};
        }
        return node;
    }

    void readMembers(Node& node, std::string_view end) {
        if (takes(end)) {
            return;
        }
        do {
            if (node.kind == Kind::object) {
                require(takes("\""));
                node.names.push_back(readText());
                require(takes(":"));
            }
            node.members.push_back(read());
        } while (takes(","));
        require(takes(end));
    }

    std::u16string readNumber() {
        const std::size_t length = std::min(m_rest.find_first_not_of("-0123456789"), m_rest.size());
        const std::string_view digits = m_rest.substr(0, length);
        require(!digits.empty() && digits != "-" && (digits.size() == 1 || digits.front() != '0'));
        m_rest.remove_prefix(length);
        return toUnits(digits);
    }

    std::u16string readText() {
        std::u16string text;
        for (;;) {
            const std::size_t plain = m_rest.find_first_of("\"\\");
            require(plain != std::string_view::npos);
            const std::u16string units = fromUtf8(m_rest.substr(0, plain));
            for (const char16_t unit : units) {
                // No character that steers a terminal.
                require(unit >= 0x20 && (unit < 0x7F || unit >= 0xA0));
            }
            text += units;
            const bool isEnd = m_rest[plain] == '"';
            m_rest.remove_prefix(plain + 1);
            if (isEnd) {
                return text;
            }
            text += readEscaped();
        }
    }

    char16_t readEscaped() {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::u16string_view units = u"\"\\/\b\f\n\r\t";
        require(!m_rest.empty());
        const char letter = m_rest.front();
        m_rest.remove_prefix(1);
        if (const std::size_t place = letters.find(letter); place != std::string_view::npos) {
            return units[place];
        }
        constexpr std::size_t digits = 4;
        require(letter == 'u' && m_rest.size() >= digits);
        unsigned unit = 0;
        for (const char digit : m_rest.substr(0, digits)) {
            const std::size_t value = std::string_view("0123456789abcdef").find(digit);
            require(value != std::string_view::npos);
            unit = unit * 16 + static_cast<unsigned>(value);
        }
        m_rest.remove_prefix(digits);
        return static_cast<char16_t>(unit);
    }

    std::string_view m_rest;
};

void printAndReadBack(FuzzInput input) {
    Node node;
    const std::string text = take(input, node, 0).toText();
    require(text.ends_with('\n'));
    require(Reader(text).readAll() == node);
}

} // namespace

} // namespace jobticket

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    jobticket::useResourceLibraryOnce();
    const std::string text(data + 1, data + size);
    switch (data[0] % 3) {
    case 0:
        jobticket::looksLikeAssignment(text);
        jobticket::mayRefuse([&] { jobticket::assign(text); });
        jobticket::mayRefuse([&] { jobticket::apply(text); });
        break;
    case 1:
        jobticket::mayRefuse([&] { jobticket::toPathText(text); });
        break;
    default:
        jobticket::printAndReadBack({data + 1, size - 1});
        break;
    }
    return 0;
}
