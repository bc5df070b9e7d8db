#include "Assignment.h"

#include <algorithm>

#include "Errors.h"
#include "MediaLibrary.h"
#include "Offers.h"
#include "Outline.h"
#include "Text.h"

namespace jobticket {

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

/// What no ticket holds can be written to none.
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

/// The path that says the same of another feature of the place.
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
        editAt(ticket, rest, enter, change); // features lie in the first member by themselves
    } else {
        // In a ticket that has no other member, it is the first.
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
    // Sets have no gaps: a value takes the place of another, or comes behind the last.
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
