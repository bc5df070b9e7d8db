#pragma once

#include <cstdint>
#include <span>

#include "ocore/Models/AjtPrinterTraits.h"

namespace zent {

/// Page description languages.
namespace pageLanguage {
constexpr std::uint32_t postScript = 1;
constexpr std::uint32_t monochromePcl = 2;
constexpr std::uint32_t colorPcl = 3;
} // namespace pageLanguage

/// A printer as it is known on the system: one row for each language of a model.
struct DriverInfo {
    const char16_t* driverName;
    std::uint32_t pdl;
    std::uint32_t model;
};

/// A model, by number; what it can do is a matter of its family.
struct ModelInfo {
    std::uint32_t model;
    std::uint32_t displayNameStringID;
    std::uint32_t family;
};

/// How long texts may be, in characters; 0 leaves no room at all. A rule is a restriction of
/// characters.
struct FamilyTexts {
    std::uint32_t jobNameLimit = 255;
    std::uint32_t jobNameRule = 1;
    std::uint32_t accountRangeUpper = 255;
    std::uint32_t accountRangeLower = 0;
    std::uint32_t accountRule = 3;
    std::uint32_t requestingUserLimit = 255;
    std::uint32_t recipientLimit = 255;
    std::uint32_t sheetMessageLimit = 1000;
    std::uint32_t operatorMessageLimit = 1000;
    std::uint32_t phoneNumberLimit = 0;
    std::uint32_t mediaColorLimit = 30;
};

/// A family of printers. What is no matter of its capability documents is a column here.
struct FamilyInfo {
    std::uint32_t family = 0;
    std::uint32_t capabilityResource1 = 0; // for all instruction forms but 2
    std::uint32_t capabilityResource2 = 0; // for form 2
    bool takesOrdo = true;
    bool capability1a = true; // covers of their own kind, front and back
    bool capability1b = true; // inserts of several media
    bool capability1c = true; // TIFF when printing and saving
    // Whether features offer the printer's default as a choice, apart from those for which the
    // feature table or a rule of this library says otherwise.
    bool featureDefault = true;
    bool mediaTextCapability = true; // spaces in media types and colours
    std::uint32_t maxPageNumber = 9999999;
    FamilyTexts texts = {};
    std::uint32_t imageShiftRule = 1; // the step of image shifts
    AjtPrinterTraits traits = {};
    // What a new ticket says of its own accord.
    bool rotationDefault = true; // that pages aren't turned
    bool mediaColorDefault = true;
    bool impositionDefault = false; // that there is no imposition
    bool side2ShiftDefault = true;
    bool opiDefault = false; // that images are inserted, without pre-scan
};

/// The tables, in the order of their numbers; the drivers of a model in the order of languages 2, 1
/// and 3.
std::span<const DriverInfo> getDriverTable();
std::span<const ModelInfo> getModelTable();
std::span<const FamilyInfo> getFamilyTable();

} // namespace zent
