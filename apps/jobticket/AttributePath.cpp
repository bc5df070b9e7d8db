#include "AttributePath.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "ExitStatus.h"
#include "Feature.h"
#include "Text.h"
#include "TicketDocument.h"
#include "ocore/AnlXlate/OrdoTranslator.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/ByteBuffer.h"
#include "ocore/OrdoParse/OrdoCategories.h"

namespace jobticket {

namespace {

using zent::AttrNode;
using zent::AttrNodeList;

/// One step of a path: "name", "name#2" for the second of that name, "name[0]" for a member of a
/// set.
struct Step {
    zent::AttrID id;
    std::uint32_t instance = 0;         // among those of the name
    std::optional<std::uint32_t> index; // in the set
};

std::optional<std::uint32_t> parseNumber(std::string_view text) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string_view nameOf(std::string_view step) { return step.substr(0, step.find_first_of("[#")); }

Step parseStep(std::string_view text) {
    Step step = {zent::AttrID(zent::CXString(fromUtf8(nameOf(text)))), 0, std::nullopt};
    if (const std::size_t bracket = text.find('['); bracket != std::string_view::npos) {
        step.index = parseNumber(text.substr(bracket + 1, text.find(']') - bracket - 1));
        text = text.substr(0, bracket);
    }
    if (const std::size_t mark = text.find('#'); mark != std::string_view::npos) {
        step.instance = parseNumber(text.substr(mark + 1)).value_or(1) - 1;
    }
    return step;
}

AttrNodeList& membersOf(AttrNode& node) {
    return static_cast<zent::IppList&>(node.getAttrValue()).getAttrNodeList();
}

/// A group of features that stand beside all others, so that listings leave it out of paths.
bool isTransparent(const AttrNode& node) {
    const std::string name = toUtf8(node.getName());
    return node.getAttrValue().isCollection() && Feature::exists(name) &&
           Feature::named(name).getKind() == ValueKind::collection &&
           !Feature::named(name).isPageLevel();
}

/// True if what the path names was there.
bool remove(AttrNodeList& list, std::string_view path) {
    const std::size_t dot = path.find('.');
    const Step step = parseStep(path.substr(0, dot));
    AttrNode* const node = list.findNode(step.id, step.instance);
    if (node == nullptr) {
        for (std::uint32_t index = 0; index < list.getNumberOfNodes(); ++index) {
            AttrNode& group = list.getNodeAt(index);
            if (isTransparent(group) && remove(membersOf(group), path)) {
                return true;
            }
        }
        return false;
    }
    const bool isLast = dot == std::string_view::npos;
    if (isLast && !step.index) {
        list.removeNode(node);
        return true;
    }
    if (!node->getAttrValue().isList()) {
        return false;
    }
    AttrNodeList* members = &membersOf(*node);
    if (node->getAttrValue().is1setOf()) {
        const std::uint32_t index = step.index.value_or(0);
        if (index >= members->getNumberOfNodes()) {
            return false;
        }
        AttrNode& member = members->getNodeAt(index);
        if (isLast) {
            members->removeNode(&member);
            return true;
        }
        if (!member.getAttrValue().isList()) {
            return false;
        }
        members = &membersOf(member);
    }
    return !isLast && remove(*members, path.substr(dot + 1));
}

std::string_view lastOf(std::string_view path) {
    return nameOf(path.substr(path.rfind('.') + 1)); // all of it without a dot
}

} // namespace

bool namesAttribute(std::string_view path) {
    for (std::string_view rest = path;;) {
        const std::size_t dot = rest.find('.');
        if (!Feature::exists(nameOf(rest.substr(0, dot))) || rest.find('#') < dot) {
            return true;
        }
        if (dot == std::string_view::npos) {
            return false;
        }
        rest.remove_prefix(dot + 1);
    }
}

void checkIsKnown(std::string_view path) {
    const std::string name(lastOf(path));
    if (zent::findOrdoCategory(fromUtf8(name)) == zent::OrdoCategory::none) {
        Feature::named(name); // raises the error that suggests a name
    }
}

std::string withoutAttributes(const std::string& document, const std::vector<std::string>& paths) {
    AttrNodeList list = readDocument(document, "the ticket");
    for (const std::string& path : paths) {
        if (!remove(list, path)) {
            checkIsKnown(path);
        }
    }
    zent::ByteBuffer written;
    zent::OrdoTranslator().anlToBuffer(list, &written);
    return {reinterpret_cast<const char*>(written.data()), written.size()};
}

} // namespace jobticket
