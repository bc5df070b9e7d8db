#pragma once

#include <cstdint>

namespace zent {

/// What the ticket stream of comment lines has to know of a printer family.
struct AjtPrinterTraits {
    // Write a signature line even when imposition isn't set, and turn wide media for signatures.
    bool signatureSizeSwap = false;
    // Save destinations are UNIX paths rather than DOS paths.
    bool unixDestination = false;
    // The job's media weight serves as default for covers, inserts and exceptions. The tables'
    // value has no effect: a printer's capabilities overwrite it.
    bool mediaWeightDefault = false;
    // Write finishing lines even when nothing is asked for.
    bool explicitFinishingNone = false;
    // Page exceptions use the short keyword and take defaults from the job.
    bool fullPageExceptions = false;

    /// The media that the printer takes, in hundredths of a millimetre.
    struct MediaSizeLimits {
        std::int32_t xMinimum = 0;
        std::int32_t xMaximum = 0;
        std::int32_t yMinimum = 0;
        std::int32_t yMaximum = 0;
        bool operator==(const MediaSizeLimits&) const = default;
    };
    MediaSizeLimits mediaSizeLimits;

    bool operator==(const AjtPrinterTraits&) const = default;
};

} // namespace zent
