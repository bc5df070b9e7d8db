#pragma once

#include <cstdint>

#include "ocore/Checking/SettingsContext.h"

namespace zent {

/// Which part of a ticket something is in.
struct RepairLocation {
    FeatureEnum feature = TJTF_ANY; // such as page-overrides; TJTF_ANY for the ticket as a whole
    std::uint32_t entry = 0;        // the entry of that feature, from 1; 0 if it has none
    // The pages that the entry is for: a range for a page override, for others a single page.
    bool hasPages = false;
    std::int32_t firstPage = 0;
    std::int32_t lastPage = 0;

    bool operator==(const RepairLocation&) const = default;
};

RepairLocation findLocation(const SettingsContext& context);
/// The path of the attribute, such as "page-overrides[2]/media-col/media-color"; the members of
/// sets are counted from 1.
CXString makePathText(const SettingsContext& context);
/// The location for users, such as "Exception pages (3 - 5)".
CXString makeLocationText(const RepairLocation& location);

} // namespace zent
