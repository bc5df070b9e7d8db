#pragma once

#include <string>
#include <vector>

#include "FeaturePath.h"
#include "Value.h"

namespace jobticket {

/// What an argument FEATURE=VALUE says.
struct Assignment {
    FeaturePath path;
    std::vector<Value> values;
};

/// Raises ProgramError: usage for what is of another form, badValue for a feature or value that
/// isn't known, or a feature that no ticket holds by itself.
Assignment parseAssignment(const std::string& text);

/// A value of the user's own is taken as it is, but it may be a slip: then a note on standard error
/// says so.
void hintAtMisspelling(const Assignment& assignment);

} // namespace jobticket
