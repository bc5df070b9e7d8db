#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Feature.h"

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
/// collection that doesn't hold what is named behind it.
FeaturePath parsePath(std::string_view text);

std::string toText(const PathStep& step);

} // namespace jobticket
