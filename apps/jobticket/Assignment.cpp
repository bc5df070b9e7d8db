#include "Assignment.h"

#include <algorithm>

#include "ExitStatus.h"
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

} // namespace jobticket
