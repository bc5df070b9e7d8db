#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

/// Whether a path names an attribute that isn't a feature, whether anything knows it or not.
bool namesAttribute(std::string_view path);

/// Raises ProgramError (badValue) for a path whose last name no ticket has.
void checkIsKnown(std::string_view path);

/// A ticket's document without attributes, each named as "jobticket show --raw" lists it. What
/// isn't there is left so. Raises ProgramError (badValue) for a name that no ticket has.
std::string withoutAttributes(const std::string& document, const std::vector<std::string>& paths);

} // namespace jobticket
