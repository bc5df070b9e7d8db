#include "Assignment.h"

#include <iostream>

#include "ExitStatus.h"
#include "Text.h"

namespace jobticket {

namespace {

/// What no ticket holds can be written to none.
void checkPlace(const Feature& feature) {
    if (feature.standsInTicket()) {
        return;
    }
    std::string holders;
    for (const Feature& holder : Feature::all()) {
        if (holder.isPageLevel()) {
            holders += (holders.empty() ? "" : ", ") + holder.getName() +
                       (holder.takesSeveral() ? "[0]" : "");
        }
    }
    throw ProgramError(ExitStatus::badValue,
                       feature.getName() + ": the feature stands in one of these only: " + holders);
}

} // namespace

Assignment parseAssignment(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw ProgramError(ExitStatus::usage, inQuotes(text) + " isn't of the form FEATURE=VALUE");
    }
    const FeaturePath path = parsePath(std::string_view(text).substr(0, equals));
    checkPlace(path.front().feature);
    Assignment assignment = {
        path, parseValues(path.back().feature, std::string_view(text).substr(equals + 1))};
    if (path.back().index && assignment.values.size() > 1) {
        throw ProgramError(ExitStatus::badValue,
                           toText(path.back()) + ": one place takes one value only");
    }
    return assignment;
}

void hintAtMisspelling(const Assignment& assignment) {
    const Feature& feature = assignment.path.back().feature;
    for (const Value& value : assignment.values) {
        if (const std::string meant = findMisspeltValue(feature, value); !meant.empty()) {
            std::cerr << "jobticket: note: " << feature.getName()
                      << " is set to a name of your own; did you mean \"" << meant << "\"?\n";
        }
    }
}

} // namespace jobticket
