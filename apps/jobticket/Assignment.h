#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "FeaturePath.h"
#include "Session.h"
#include "Value.h"

namespace jobticket {

/// What an argument FEATURE=VALUE says. Without values it says that there are to be none.
struct Assignment {
    FeaturePath path;
    std::vector<Value> values;
};

/// Reads an argument; "stock=NAME" becomes what the stock of the user's library is, in place of all
/// that was said of the medium. Raises ProgramError: usage for what is of another form, badValue
/// for a feature, value or stock that isn't known, or a feature that can't stand where it is put.
std::vector<Assignment> parseAssignments(const std::string& text);

/// Whether an argument is meant as one, rather than as the name of a file: "./a=b" is a file.
bool looksLikeAssignment(std::string_view text);

/// A value of the user's own is taken as it is, but it may be a slip: then this is a note that says
/// so, else empty.
std::string hintAtMisspelling(const Assignment& assignment);

/// Sets the values of a feature in place of those it has; with an index, that one alone. Raises
/// ProgramError (badValue) for an index that would leave a gap.
void setValues(Ticket& ticket, std::span<const PathStep> path, const std::vector<Value>& values);

/// Removes all values of a feature; with an index, that one alone. What isn't there is left so.
void removeValues(Ticket& ticket, std::span<const PathStep> path);

} // namespace jobticket
