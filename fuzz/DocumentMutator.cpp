#include "DocumentMutator.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include "FuzzerMutate.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "platform/Files.h"

namespace zent::fuzz {

namespace {

/// The places of an element in a document: "<name attributes>" content "</name>".
struct Element {
    std::size_t begin;
    std::size_t contentBegin;
    std::size_t contentEnd;
    std::size_t end;
    std::string_view name;
};

constexpr std::string_view nameEnds = " \t\r\n/>";

/// The elements that are begun and ended, in the order of their ends. What only looks like a tag,
/// such as one in a comment, may be among them.
std::vector<Element> findElements(std::string_view document) {
    std::vector<Element> open;
    std::vector<Element> found;
    for (std::size_t begin = document.find('<'); begin != std::string_view::npos;
         begin = document.find('<', begin + 1)) {
        const std::size_t end = document.find('>', begin);
        if (end == std::string_view::npos || document[begin + 1] == '!' ||
            document[begin + 1] == '?') {
            continue;
        }
        const bool isEnd = document[begin + 1] == '/';
        const std::size_t nameBegin = begin + (isEnd ? 2 : 1);
        const std::string_view name =
            document.substr(nameBegin, document.find_first_of(nameEnds, nameBegin) - nameBegin);
        if (!isEnd) {
            open.push_back({begin, end + 1, end + 1, end + 1, name});
            if (document[end - 1] != '/') {
                continue;
            }
        }
        if (!open.empty()) {
            open.back().contentEnd = isEnd ? begin : open.back().contentEnd;
            open.back().end = end + 1;
            found.push_back(open.back());
            open.pop_back();
        }
    }
    return found;
}

/// The names that the document type declares, from its file beside the program.
const std::vector<std::string>& declaredNames() {
    static const auto names = [] {
        const CXString program(platform::getModulePath());
        const CXString path =
            program.left(program.findLast(platform::pathSeparator) + 1) + u"ordo-v02025.dtd";
        std::ifstream file(path.toNarrow(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        std::vector<std::string> found;
        constexpr std::string_view declaration = "<!ELEMENT ";
        for (std::size_t place = text.find(declaration); place != std::string::npos;
             place = text.find(declaration, place + 1)) {
            const std::size_t begin = place + declaration.size();
            found.push_back(text.substr(begin, text.find_first_of(nameEnds, begin) - begin));
        }
        if (found.empty()) {
            std::abort();
        }
        return found;
    }();
    return names;
}

const std::vector<std::string>& knownValues() {
    static const auto values = [] {
        std::vector<std::string> found{"0",          "1",          "-1",       "2147483647",
                                       "99999",      "true",       "x",        "-2147483648",
                                       "4294967296", "&#xD;&#xA;", "a %s b%n", "&#x20AC;"};
        const FeatureValueDataBase table;
        for (std::int32_t value = 1; value < value::firstRunTimeValue; ++value) {
            if (const FeatureValueReference info = table.findFeatureValueInfo(value)) {
                found.push_back(info->m_text.toNarrow());
            }
        }
        return found;
    }();
    return values;
}

template <typename Range>
const auto& pick(const Range& range, Random& random) {
    return *std::next(std::begin(range),
                      static_cast<std::ptrdiff_t>(below(random, std::size(range))));
}

std::string pickName(const std::vector<Element>& elements, Random& random) {
    constexpr std::size_t oneInThree = 3;
    if (below(random, oneInThree) == 0) {
        return std::string(pick(elements, random).name);
    }
    // The suffixes of capabilities.
    constexpr std::array suffixes{"", "", "", "", "-supported", "-default"};
    return pick(declaredNames(), random) + pick(suffixes, random);
}

std::string_view pickSyntax(Random& random) {
    static constexpr std::array<std::string_view, 12> syntaxes{
        "integer", "enum",          "boolean", "keyword",    "name",           "text",
        "uri",     "mimeMediaType", "1setOf",  "collection", "rangeOfInteger", "resolution"};
    return pick(syntaxes, random);
}

std::string wrapped(const std::string& content, const std::vector<Element>& elements,
                    Random& random) {
    const std::string name = pickName(elements, random);
    return "<" + name + " syntax=\"" + std::string(pickSyntax(random)) + "\">" + content + "</" +
           name + ">";
}

class Mutation {
public:
    Mutation(const std::string& document, Random& random)
        : m_document(document), m_random(random), m_elements(findElements(m_document)) {}

    std::string run() {
        if (m_elements.empty()) {
            return m_document;
        }
        static constexpr std::array kinds{
            &Mutation::remove, &Mutation::repeat,       &Mutation::insert,  &Mutation::insertCopy,
            &Mutation::rename, &Mutation::changeSyntax, &Mutation::setText, &Mutation::mutateText,
            &Mutation::wrap,   &Mutation::change};
        // A large document takes the time of many small ones, and large ones breed larger ones.
        const bool shrinks = m_document.size() > large && below(m_random, 8) != 0;
        const auto kind = shrinks ? &Mutation::remove : pick(kinds, m_random);
        return (this->*kind)(pick(m_elements, m_random));
    }

    /// Puts a text into an element: before all else in it or after that.
    std::string put(const std::string& content) {
        if (m_elements.empty()) {
            return m_document;
        }
        const Element& target = pick(m_elements, m_random);
        if (target.contentBegin == target.end) { // "<name/>" can't hold anything
            return replaced(target.end, target.end, content);
        }
        const std::size_t place = below(m_random, 2) == 0 ? target.contentBegin : target.contentEnd;
        return replaced(place, place, content);
    }

    /// Chooses an element, mostly a small one.
    std::string pickText() {
        if (m_elements.empty()) {
            return {};
        }
        constexpr int tries = 4;
        std::string text = textOf(pick(m_elements, m_random));
        for (int i = 0; i < tries && text.size() > large / 4; ++i) {
            text = textOf(pick(m_elements, m_random));
        }
        return text;
    }

private:
    static constexpr std::size_t large = 4096;

    std::string replaced(std::size_t begin, std::size_t end, const std::string& by) const {
        return m_document.substr(0, begin) + by + m_document.substr(end);
    }
    std::string textOf(const Element& element) const {
        return m_document.substr(element.begin, element.end - element.begin);
    }

    std::string remove(const Element& element) { return replaced(element.begin, element.end, {}); }
    std::string repeat(const Element& element) {
        return replaced(element.end, element.end, textOf(element));
    }
    std::string repeatOften(const Element& element) {
        constexpr std::size_t most = 300;
        constexpr std::size_t mostBytes = std::size_t{1} << 18;
        std::string copies;
        for (std::size_t count = below(m_random, most); count > 0; --count) {
            if (copies.size() < mostBytes) {
                copies += textOf(element);
            }
        }
        return replaced(element.end, element.end, copies);
    }
    /// Chooses how to change the document. Changes that make it slow to read are rare.
    std::string change(const Element& element) {
        switch (below(m_random, 16)) {
        case 0:
            return repeatOften(element);
        case 1:
            return insertEntity(element);
        default:
            return setText(element);
        }
    }
    std::string insertCopy(const Element& element) { return put(textOf(element)); }
    std::string insert(const Element& /*element*/) {
        return put(wrapped(pick(knownValues(), m_random), m_elements, m_random));
    }
    std::string wrap(const Element& element) {
        return replaced(element.begin, element.end, wrapped(textOf(element), m_elements, m_random));
    }
    std::string rename(const Element& element) {
        const std::string name = pickName(m_elements, m_random);
        std::string text = textOf(element);
        if (element.contentBegin != element.end) {
            text.replace(element.contentEnd - element.begin + 2, element.name.size(), name);
        }
        text.replace(1, element.name.size(), name);
        return replaced(element.begin, element.end, text);
    }
    /// The value of the element's first attribute, whatever that is called.
    std::string changeSyntax(const Element& element) {
        const std::size_t begin = m_document.find('"', element.begin);
        if (begin >= element.contentBegin) {
            return m_document;
        }
        const std::size_t end = m_document.find('"', begin + 1);
        if (end >= element.contentBegin) {
            return m_document;
        }
        return replaced(begin + 1, end, std::string(pickSyntax(m_random)));
    }
    std::string setText(const Element& element) {
        return replaced(element.contentBegin, element.contentEnd, pick(knownValues(), m_random));
    }
    std::string mutateText(const Element& element) {
        constexpr std::size_t mostAdded = 64;
        std::string text =
            m_document.substr(element.contentBegin, element.contentEnd - element.contentBegin);
        mutateBytes(text, text.size() + mostAdded);
        return replaced(element.contentBegin, element.contentEnd, text);
    }
    /// Declares an entity, if the document has a place for declarations, and refers to it.
    std::string insertEntity(const Element& element) {
        const std::size_t root = m_document.find("<" + std::string(m_elements.back().name));
        const std::string text = replaced(element.contentBegin, element.contentBegin, "&e;");
        const std::size_t type = text.find("<!DOCTYPE");
        if (type == std::string::npos || type > root) {
            return text.substr(0, root) + "<!DOCTYPE " + std::string(m_elements.back().name) +
                   " [<!ENTITY e \"" + pick(knownValues(), m_random) + "\">]>" + text.substr(root);
        }
        const std::size_t end = text.find('>', type);
        return text.substr(0, end) + " [<!ENTITY e \"" + pick(knownValues(), m_random) + "\">]" +
               text.substr(end);
    }

    const std::string m_document;
    Random& m_random;
    std::vector<Element> m_elements;
};

} // namespace

std::string mutateDocument(const std::string& document, Random& random) {
    return Mutation(document, random).run();
}

std::string crossDocuments(const std::string& document, const std::string& other, Random& random) {
    return Mutation(document, random).put(Mutation(other, random).pickText());
}

} // namespace zent::fuzz
