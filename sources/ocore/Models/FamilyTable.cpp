// The families of printers. A column is what differs between families and isn't in their capability
// documents.

#include <array>

#include "ocore/Models/PrinterTables.h"
#include "resources/ids.h"

namespace zent {

namespace {

using Limits = AjtPrinterTraits::MediaSizeLimits;

constexpr AjtPrinterTraits common(Limits limits) {
    return {.unixDestination = true,
            .mediaWeightDefault = true,
            .explicitFinishingNone = true,
            .mediaSizeLimits = limits};
}

constexpr AjtPrinterTraits narrow(Limits limits) {
    return {.mediaWeightDefault = true, .mediaSizeLimits = limits};
}

constexpr AjtPrinterTraits strict(Limits limits) {
    return {.signatureSizeSwap = true,
            .mediaWeightDefault = true,
            .fullPageExceptions = true,
            .mediaSizeLimits = limits};
}

/// The limits of those controllers that take short texts only.
constexpr FamilyTexts narrowTexts{.jobNameLimit = 40,
                                  .accountRangeUpper = 12,
                                  .accountRule = 2,
                                  .requestingUserLimit = 40,
                                  .recipientLimit = 40,
                                  .sheetMessageLimit = 80,
                                  .operatorMessageLimit = 0,
                                  .phoneNumberLimit = 19,
                                  .mediaColorLimit = 27};

constexpr FamilyTexts strictTexts{.jobNameLimit = 40,
                                  .jobNameRule = 2,
                                  .accountRangeUpper = 12,
                                  .accountRangeLower = 3,
                                  .accountRule = 2,
                                  .requestingUserLimit = 40,
                                  .recipientLimit = 40,
                                  .sheetMessageLimit = 80,
                                  .operatorMessageLimit = 100,
                                  .phoneNumberLimit = 19};

constexpr FamilyTexts streamTexts{
    .accountRule = 1, .sheetMessageLimit = 100, .operatorMessageLimit = 100};

constexpr FamilyTexts textsWithPhoneNumber{.phoneNumberLimit = 19};

// A row says what differs from the defaults of FamilyInfo. Media limits are from and to, across and
// down.
constexpr std::array<FamilyInfo, 21> families{{
    {.family = 1,
     .capabilityResource1 = IDR_CAPABILITIES_1,
     .capabilityResource2 = IDR_CAPABILITIES_1_STREAM,
     .capability1c = false,
     .maxPageNumber = 99999,
     .traits = common({18290, 48770, 18290, 32000})},
    {.family = 2,
     .capabilityResource1 = IDR_CAPABILITIES_2,
     .capabilityResource2 = IDR_CAPABILITIES_2_STREAM,
     .capability1c = false,
     .maxPageNumber = 99999,
     .traits = common({18290, 48770, 18290, 32000})},
    {.family = 3,
     .capabilityResource1 = IDR_CAPABILITIES_3,
     .capabilityResource2 = IDR_CAPABILITIES_3_STREAM,
     .capability1c = false,
     .traits = common({18290, 48770, 18290, 32000})},
    {.family = 4,
     .capabilityResource1 = IDR_CAPABILITIES_4,
     .capabilityResource2 = IDR_CAPABILITIES_4_STREAM,
     .capability1c = false,
     .traits = common({18290, 48770, 18290, 32000})},
    {.family = 5,
     .capabilityResource1 = IDR_CAPABILITIES_5,
     .capabilityResource2 = IDR_CAPABILITIES_5_STREAM,
     .capability1c = false,
     .traits = common({13970, 57150, 17780, 36400})},
    {.family = 6,
     .capabilityResource1 = IDR_CAPABILITIES_6,
     .capabilityResource2 = IDR_CAPABILITIES_6_STREAM,
     .traits = common({20320, 48870, 25400, 36320})},
    {.family = 7,
     .capabilityResource1 = IDR_CAPABILITIES_7,
     .capabilityResource2 = IDR_CAPABILITIES_7_STREAM,
     .takesOrdo = false,
     .maxPageNumber = 99999,
     .texts = streamTexts,
     .traits = common({13970, 45720, 10410, 30480})},
    {.family = 8,
     .capabilityResource1 = IDR_CAPABILITIES_8,
     .capabilityResource2 = IDR_CAPABILITIES_7_STREAM,
     .maxPageNumber = 99999,
     .traits = common({13970, 45720, 10410, 30480})},
    {.family = 9,
     .capabilityResource1 = IDR_CAPABILITIES_9,
     .capabilityResource2 = IDR_CAPABILITIES_9_STREAM,
     .traits = common({17780, 47000, 25400, 36400}),
     .rotationDefault = false},
    {.family = 10,
     .capabilityResource1 = IDR_CAPABILITIES_10,
     .capabilityResource2 = IDR_CAPABILITIES_10_STREAM,
     .traits = common({17780, 47000, 25400, 36400}),
     .rotationDefault = false},
    {.family = 11,
     .capabilityResource1 = IDR_CAPABILITIES_11,
     .capabilityResource2 = IDR_CAPABILITIES_11_STREAM,
     .takesOrdo = false,
     .capability1b = false,
     .mediaTextCapability = false,
     .maxPageNumber = 99999,
     .texts = narrowTexts,
     .imageShiftRule = 2,
     .traits = narrow({17800, 47000, 25400, 35600}),
     .rotationDefault = false},
    {.family = 12,
     .capabilityResource1 = IDR_CAPABILITIES_12,
     .capabilityResource2 = IDR_CAPABILITIES_12_STREAM,
     .takesOrdo = false,
     .capability1b = false,
     .mediaTextCapability = false,
     .maxPageNumber = 99999,
     .texts = narrowTexts,
     .imageShiftRule = 2,
     .traits = narrow({17800, 47000, 25400, 36400}),
     .rotationDefault = false},
    {.family = 13,
     .capabilityResource1 = IDR_CAPABILITIES_13,
     .capabilityResource2 = IDR_CAPABILITIES_13_STREAM,
     .takesOrdo = false,
     .capability1b = false,
     .mediaTextCapability = false,
     .maxPageNumber = 99999,
     .texts = narrowTexts,
     .imageShiftRule = 2,
     .traits = narrow({20300, 21600, 25400, 35600}),
     .rotationDefault = false},
    {.family = 14,
     .capabilityResource1 = IDR_CAPABILITIES_14,
     .capabilityResource2 = IDR_CAPABILITIES_14_STREAM,
     .takesOrdo = false,
     .capability1b = false,
     .mediaTextCapability = false,
     .maxPageNumber = 99999,
     .texts = narrowTexts,
     .imageShiftRule = 2,
     .traits = narrow({20300, 21600, 25400, 35600}),
     .rotationDefault = false},
    {.family = 15,
     .capabilityResource1 = IDR_CAPABILITIES_15,
     .capabilityResource2 = IDR_CAPABILITIES_15_STREAM,
     .traits = common({2540, 43180, 2540, 43180}),
     .mediaColorDefault = false},
    {.family = 16,
     .capabilityResource1 = IDR_CAPABILITIES_16,
     .capabilityResource2 = IDR_CAPABILITIES_16_STREAM,
     .traits = common({2540, 45720, 2540, 43180}),
     .mediaColorDefault = false},
    {.family = 17,
     .capabilityResource1 = IDR_CAPABILITIES_17,
     .capabilityResource2 = IDR_CAPABILITIES_17_STREAM,
     .takesOrdo = false,
     .capability1a = false,
     .capability1b = false,
     .featureDefault = false,
     .maxPageNumber = 9999,
     .texts = strictTexts,
     .traits = strict({20300, 43200, 25400, 36300}),
     .impositionDefault = true,
     .side2ShiftDefault = false},
    {.family = 18,
     .capabilityResource1 = IDR_CAPABILITIES_18,
     .capabilityResource2 = IDR_CAPABILITIES_18_STREAM,
     .traits = common({20320, 32000, 13970, 46990})},
    {.family = 19,
     .capabilityResource1 = IDR_CAPABILITIES_19,
     .capabilityResource2 = IDR_CAPABILITIES_19_STREAM,
     .traits = common({20320, 32000, 13970, 46990})},
    {.family = 20,
     .capabilityResource1 = IDR_CAPABILITIES_20,
     .capabilityResource2 = IDR_CAPABILITIES_20_STREAM,
     .traits = common({2540, 49530, 2540, 71120}),
     .mediaColorDefault = false},
    {.family = 21,
     .capabilityResource1 = IDR_CAPABILITIES_21,
     .capabilityResource2 = IDR_CAPABILITIES_21,
     .texts = textsWithPhoneNumber,
     .traits = common({2540, 57150, 2540, 71120}),
     .opiDefault = true},
}};

} // namespace

std::span<const FamilyInfo> getFamilyTable() { return families; }

} // namespace zent
