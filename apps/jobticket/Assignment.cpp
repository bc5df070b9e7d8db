#include "Assignment.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "Errors.h"
#include "Feature.h"
#include "MediaLibrary.h"
#include "Offers.h"
#include "Outline.h"
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

/// One step of the path to an attribute in a report, where the members of sets are counted from 1.
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

/// Whether a step can be left out: features in a collection of the ticket, or in the first of
/// several, are found by their names alone.
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
        Feature::named(""); // raises the error for an unknown name
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

/// Whether a node is a group of features that a ticket holds beside all others. Listings leave such
/// groups out of paths.
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
    return nameOf(path.substr(path.rfind('.') + 1)); // the whole path if there is no dot
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

namespace {

constexpr std::string_view stockName = "stock";

[[noreturn]] void fail(const Feature& feature, const std::string& reason) {
    throw ProgramError(ExitStatus::badValue, feature.getName() + ": " + reason);
}

std::string listHolders(const Feature& feature) {
    std::string holders;
    for (const Feature& holder : Feature::all()) {
        if (holder.isPageLevel() && mayHold(holder, feature)) {
            holders += (holders.empty() ? "" : ", ") + holder.getName() +
                       (holder.takesSeveral() ? "[0]" : "");
        }
    }
    return holders;
}

/// Refuses a path that no ticket can have.
void checkPlace(const FeaturePath& path) {
    const Feature& outermost = path.front().feature;
    if (!outermost.standsInTicket()) {
        fail(outermost, "the feature stands only in " + listHolders(outermost));
    }
    for (std::size_t index = 1; index < path.size(); ++index) {
        const Feature& holder = path[index - 1].feature;
        const Feature& feature = path[index].feature;
        if (holder.isPageLevel() && !mayHold(holder, feature)) {
            fail(feature, "no printer takes the feature in " + holder.getName());
        }
    }
}

/// The path of another feature in the same place.
FeaturePath withLast(const std::string& place, const std::string& name) {
    return parsePath(place + name);
}

/// What a ticket says of its medium when it asks for a stock. `place` is empty, or ends in a dot.
std::vector<Assignment> describeStock(const std::string& place, const std::string& name) {
    std::vector<Assignment> assignments = {{withLast(place, "media"), {}},
                                           {withLast(place, "media-col"), {}}};
    for (const OutlineLine& line : MediaLibrary({}, "").describe(name)) {
        if (!line.isHeading) {
            FeaturePath path = withLast(place, line.path);
            std::vector<Value> values = parseValues(path.back().feature, joinValues(line.values));
            assignments.push_back({std::move(path), std::move(values)});
        }
    }
    return assignments;
}

} // namespace

bool looksLikeAssignment(std::string_view text) {
    const std::size_t equals = text.find('=');
    return equals != std::string_view::npos &&
           text.substr(0, equals).find_first_of("/\\") == std::string_view::npos;
}

std::vector<Assignment> parseAssignments(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw ProgramError(ExitStatus::usage, inQuotes(text) + " isn't of the form FEATURE=VALUE");
    }
    const std::string name = text.substr(0, equals);
    const std::string value = text.substr(equals + 1);
    const std::size_t dot = name.rfind('.') + 1; // 0 without one
    if (name.substr(dot) == stockName) {
        return describeStock(name.substr(0, dot), value);
    }
    const FeaturePath path = parsePath(name);
    checkPlace(path);
    Assignment assignment = {path, parseValues(path.back().feature, value)};
    if (path.back().index && assignment.values.size() > 1) {
        throw ProgramError(ExitStatus::badValue,
                           toText(path.back()) + ": one place takes one value only");
    }
    return {assignment};
}

std::string hintAtMisspelling(const Assignment& assignment) {
    const Feature& feature = assignment.path.back().feature;
    std::string hints;
    for (const Value& value : assignment.values) {
        if (const std::string meant = findMisspeltValue(feature, value); !meant.empty()) {
            hints += "jobticket: note: " + feature.getName() +
                     " is set to a name of your own; did you mean \"" + meant + "\"?\n";
        }
    }
    return hints;
}

namespace {

std::uint32_t indexOf(const PathStep& step) { return step.index.value_or(0); }

/// Walks down a path, as far as `enter` allows, runs a change on what holds its last feature, and
/// stores on the way back what was made of each part.
template <typename Enter, typename Change>
void editAt(Ticket& ticket, std::span<const PathStep> path, const Enter& enter,
            const Change& change) {
    const PathStep& step = path.front();
    if (!enter(ticket, step)) {
        return;
    }
    if (path.size() == 1) {
        change(ticket, step);
        return;
    }
    const std::span<const PathStep> rest = path.subspan(1);
    const std::uint32_t index = indexOf(step);
    if (step.feature.isPageLevel()) {
        Ticket nested = ticket.copyNested(step.feature, index);
        editAt(nested, rest, enter, change);
        ticket.setNested(step.feature, index, nested);
    } else if (index == 0) {
        // Features in the first member are found by their names.
        editAt(ticket, rest, enter, change);
    } else {
        // Only the first member can be edited, so that this one is made the first of a ticket of
        // its own.
        Ticket alone = ticket.createEmpty();
        alone.setNested(step.feature, 0, ticket.copyNested(step.feature, index));
        editAt(alone, rest, enter, change);
        ticket.setNested(step.feature, index, alone.copyNested(step.feature, 0));
    }
}

/// Removes the values from an index on.
void removeFrom(Ticket& ticket, const Feature& feature, std::uint32_t first) {
    for (std::uint32_t count = ticket.count(feature); count > first; --count) {
        ticket.remove(feature, first);
    }
}

} // namespace

void setValues(Ticket& ticket, std::span<const PathStep> path, const std::vector<Value>& values) {
    // Sets have no gaps: a value takes the place of another, or comes after the last.
    const auto checkNoGap = [](const Ticket& holder, const PathStep& step) {
        const std::uint32_t count = holder.count(step.feature);
        if (indexOf(step) > count) {
            throw ProgramError(ExitStatus::badValue,
                               toText(step) + ": there are " + std::to_string(count) +
                                   " so far, so the next is [" + std::to_string(count) + "]");
        }
        return true;
    };
    editAt(ticket, path, checkNoGap, [&values](Ticket& holder, const PathStep& step) {
        std::uint32_t index = indexOf(step);
        for (const Value& value : values) {
            holder.set(step.feature, index++, value);
        }
        if (!step.index) {
            removeFrom(holder, step.feature, index);
        }
    });
}

void removeValues(Ticket& ticket, std::span<const PathStep> path) {
    const auto isThere = [](const Ticket& holder, const PathStep& step) {
        return holder.count(step.feature) > indexOf(step);
    };
    editAt(ticket, path, isThere, [](Ticket& holder, const PathStep& step) {
        if (step.index) {
            holder.remove(step.feature, *step.index);
        } else {
            removeFrom(holder, step.feature, 0);
        }
    });
}

} // namespace jobticket
