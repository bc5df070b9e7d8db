#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jobticket {

/// What an argument FEATURE=VALUE that begins so may be: whole words, with the features of the
/// ticket or of the collection named, or with the values of the feature. Never fails.
std::vector<std::string> completeWord(std::string_view word);

} // namespace jobticket
