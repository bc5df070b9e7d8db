#include "FeaturePath.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "Errors.h"
#include "Feature.h"
#include "Text.h"
#include "TicketFile.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "ocore/Resources/ByteBuffer.h"

namespace jobticket {

namespace {

[[noreturn]] void fail(std::string_view where, const std::string& reason) {
    throw ProgramError(ExitStatus::badValue, toPrintable(where) + ": " + reason);
}

std::uint32_t parseIndex(std::string_view where, std::string_view text) {
    std::uint32_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    if (error != std::errc() || end != text.data() + text.size()) {
        fail(where, "an index is a number in brackets, from [0] on");
    }
    return index;
}

PathStep parseStep(std::string_view text) {
    const std::size_t bracket = text.find('[');
    PathStep step = {Feature::named(text.substr(0, bracket)), std::nullopt};
    if (bracket == std::string_view::npos) {
        return step;
    }
    if (!text.ends_with(']')) {
        fail(text, "the bracket isn't closed");
    }
    step.index = parseIndex(text, text.substr(bracket + 1, text.size() - bracket - 2));
    if (!step.feature.takesSeveral()) {
        fail(text, "the feature has one value only, so it takes no index");
    }
    return step;
}

void checkParent(std::string_view where, const Feature& parent, const Feature& member) {
    if (parent.getKind() != ValueKind::collection) {
        fail(where, parent.getName() + " holds no other features");
    }
    if (!parent.isPageLevel() && !member.isMemberOf(parent)) {
        fail(where, member.getName() + " is no part of " + parent.getName());
    }
}

/// One step of a way to an attribute, whose members of sets are counted from 1.
struct WayStep {
    std::string_view name;
    std::optional<std::uint32_t> index; // from 0 on
};

WayStep parseWayStep(std::string_view text) {
    const std::size_t bracket = text.find('[');
    WayStep step = {text.substr(0, bracket), std::nullopt};
    if (bracket != std::string_view::npos) {
        const std::string_view index = text.substr(bracket + 1, text.find(']') - bracket - 1);
        step.index = parseIndex(text, index) - 1;
    }
    return step;
}

/// Features in a collection of the ticket, or in the first of several, are found by themselves.
bool isFoundThrough(const WayStep& step) {
    return step.index.value_or(0) == 0 && Feature::exists(step.name) &&
           !Feature::named(step.name).isPageLevel();
}

} // namespace

FeaturePath parsePath(std::string_view text) {
    FeaturePath path;
    for (std::string_view rest = text;;) {
        const std::size_t dot = rest.find('.');
        path.push_back(parseStep(rest.substr(0, dot)));
        if (path.size() > 1) {
            checkParent(text, path[path.size() - 2].feature, path.back().feature);
        }
        if (dot == std::string_view::npos) {
            return path;
        }
        rest.remove_prefix(dot + 1);
    }
}

std::string toPathText(std::string_view way) {
    std::string path;
    for (std::string_view rest = way;;) {
        const std::size_t slash = rest.find('/');
        const WayStep step = parseWayStep(rest.substr(0, slash));
        const bool isLast = slash == std::string_view::npos;
        if (isLast || !isFoundThrough(step)) {
            path += step.name;
            path += step.index ? "[" + std::to_string(*step.index) + "]" : "";
            path += isLast ? "" : ".";
        }
        if (isLast) {
            return path;
        }
        rest.remove_prefix(slash + 1);
    }
}

std::string toText(const PathStep& step) {
    return step.feature.getName() + (step.index ? "[" + std::to_string(*step.index) + "]" : "");
}

namespace {

using zent::AttrNode;
using zent::AttrNodeList;

/// One step of a path: "name", "name#2" for the second of that name, "name[0]" for a member of a
/// set.
struct AttributeStep {
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

AttributeStep parseAttributeStep(std::string_view text) {
    if (nameOf(text).empty()) {
        Feature::named(""); // raises the error for a name that none has
    }
    AttributeStep step = {zent::AttrID(zent::CXString(fromUtf8(nameOf(text)))), 0, std::nullopt};
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
    const AttributeStep step = parseAttributeStep(path.substr(0, dot));
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
