#include "support/ListText.h"

#include <array>
#include <stdexcept>

#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppList.h"

namespace zent::test {

namespace {

struct Brackets {
    char open;
    char close;
    const CXString& syntax;
};
const std::array<Brackets, 4> allBrackets{{{'{', '}', syntax::collection},
                                           {'[', ']', syntax::setOf},
                                           {'(', ')', syntax::rangeOfInteger},
                                           {'<', '>', syntax::resolution}}};

CXString wide(std::string_view text) { return CXString(text.data(), text.size()); }

bool isNumber(std::string_view text) {
    return text.find_first_not_of("-0123456789") == std::string_view::npos;
}

/// The syntax of a value that names none.
const CXString& plainSyntax(std::string_view text) {
    return isNumber(text) ? syntax::integer : syntax::keyword;
}

std::string textOfNode(const AttrNode& node) {
    const AttrValue& value = node.getAttrValue();
    const std::string text = (node.isPrivate() ? "!" : "") + node.getName().toNarrow();
    if (!value.isList()) {
        const std::string content = value.getIppValue().toNarrow();
        const bool isPlain = value.getIppSyntax() == plainSyntax(content);
        return text + '=' + (isPlain ? "" : value.getIppSyntax().toNarrow() + ':') + content;
    }
    const auto& list = static_cast<const IppList&>(value);
    for (const Brackets& brackets : allBrackets) {
        if (list.getIppSyntax() == brackets.syntax) {
            return text + brackets.open + textOfList(list.getAttrNodeList()) + brackets.close;
        }
    }
    throw std::invalid_argument("no brackets for " + list.getIppSyntax().toNarrow());
}

class Reader {
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    AttrNodeList readList(char close) {
        AttrNodeList list;
        while (take(' ')) {
        }
        while (!m_rest.empty() && !take(close)) {
            list.addNode(readNode());
            while (take(' ')) {
            }
        }
        return list;
    }

private:
    bool take(char expected) {
        const bool isThere = m_rest.starts_with(expected);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    std::string_view takeUntil(std::string_view ends) {
        const std::string_view part = m_rest.substr(0, m_rest.find_first_of(ends));
        m_rest.remove_prefix(part.size());
        return part;
    }

    AttrNode readNode() {
        const bool isPrivate = take('!');
        const AttrID id(wide(takeUntil("={[(<")));
        for (const Brackets& brackets : allBrackets) {
            if (take(brackets.open)) {
                return {id, std::make_unique<IppList>(readList(brackets.close), brackets.syntax),
                        isPrivate};
            }
        }
        take('=');
        return {id, valueOf(takeUntil(" }])>")), isPrivate};
    }

    static std::unique_ptr<AttrValue> valueOf(std::string_view text) {
        const std::size_t colon = text.find(':');
        if (colon != std::string_view::npos) {
            return AttrValueFactory::createAttrValue(wide(text.substr(0, colon)),
                                                     wide(text.substr(colon + 1)));
        }
        return AttrValueFactory::createAttrValue(plainSyntax(text), wide(text));
    }

    std::string_view m_rest;
};

} // namespace

std::string textOfList(const AttrNodeList& list) {
    std::string text;
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        text += (i == 0 ? "" : " ") + textOfNode(list.getNodeAt(i));
    }
    return text;
}

AttrNodeList listOf(std::string_view text) { return Reader(text).readList('\0'); }

} // namespace zent::test
