#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Feature.h"
#include "Session.h"
#include "Value.h"

namespace jobticket {

/// One name of a path, with the index that picks one value of a set.
struct PathStep {
    Feature feature;
    std::optional<std::uint32_t> index;
};

/// Where a value lies: a feature, and before it the collections that it lies in, as in
/// "page-overrides[0].sides". Features of the ticket itself need no collection before them:
/// "media-color" says enough.
using FeaturePath = std::vector<PathStep>;

/// Raises ProgramError (badValue) for a name that isn't known, an index on what holds no set, and a
/// collection that doesn't hold what is named after it.
FeaturePath parsePath(std::string_view text);

std::string toText(const PathStep& step);

/// Converts the path of an attribute as reports of repairs have it
/// ("page-overrides[2]/media-col/media-color") to the form above ("page-overrides[1].media-color").
std::string toPathText(std::string_view way);

/// Whether a path names an attribute that isn't a feature, be it known or not.
bool namesAttribute(std::string_view path);

/// Raises ProgramError (badValue) for a path whose last name no ticket has.
void checkIsKnown(std::string_view path);

/// Removes attributes from a ticket's document, each named as "jobticket show --raw" lists it.
/// Names of attributes that aren't there change nothing. Raises ProgramError (badValue) for a name
/// that no ticket has.
std::string withoutAttributes(const std::string& document, const std::vector<std::string>& paths);

/// The content of an argument FEATURE=VALUE. Without values it removes those that there are.
struct Assignment {
    FeaturePath path;
    std::vector<Value> values;
};

/// Reads an argument; "stock=NAME" becomes the features of that stock of the user's library, which
/// replace all that the ticket says of the medium. Raises ProgramError: usage for what is of
/// another form, badValue for a feature, value or stock that isn't known, or a feature that can't
/// stand where it is put.
std::vector<Assignment> parseAssignments(const std::string& text);

/// Whether an argument is meant as one, rather than as the name of a file: "./a=b" is a file.
bool looksLikeAssignment(std::string_view text);

/// A note for values of the user's own that are taken as they are, but look like slips; empty if
/// there is none.
std::string hintAtMisspelling(const Assignment& assignment);

/// Sets the values of a feature in place of those it has; with an index, that one alone. Raises
/// ProgramError (badValue) for an index that would leave a gap.
void setValues(Ticket& ticket, std::span<const PathStep> path, const std::vector<Value>& values);

/// Removes all values of a feature; with an index, that one alone. If there is none, nothing
/// changes.
void removeValues(Ticket& ticket, std::span<const PathStep> path);

} // namespace jobticket
