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

/// The way to an attribute of a ticket, as reports of repairs tell it
/// ("page-overrides[2]/media-col/media-color"), in the form above
/// ("page-overrides[1].media-color").
std::string toPathText(std::string_view way);

} // namespace jobticket
