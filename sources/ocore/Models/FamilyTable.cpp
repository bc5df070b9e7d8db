#include "ocore/Models/PrinterTables.h"

#include <array>

namespace zent {

namespace {

constexpr FamilyInfo common(std::uint32_t number, std::uint32_t resource1, std::uint32_t resource2,
                            AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family;
    family.family = number;
    family.capabilityResource1 = resource1;
    family.capabilityResource2 = resource2;
    family.traits.mediaSizeLimits = limits;
    return family;
}

/// The families whose controllers know short texts only.
constexpr FamilyInfo narrow(std::uint32_t number, std::uint32_t resource1, std::uint32_t resource2,
                            AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.takesOrdo = false;
    family.capability1b = false;
    family.mediaTextCapability = false;
    family.maxPageNumber = 99999;
    family.jobNameLimit = 40;
    family.jobNameRule = 1;
    family.accountRangeUpper = 12;
    family.accountRangeLower = 0;
    family.accountRule = 2;
    family.sheetMessageLimit = 80;
    family.operatorMessageLimit = 0;
    family.phoneNumberLimit = 19;
    family.mediaColorLimit = 27;
    family.imageShiftRule = 2;
    family.requestingUserLimit = 40;
    family.recipientLimit = 40;
    family.traits = {false, false, true, false, false, family.traits.mediaSizeLimits};
    return family;
}

constexpr FamilyInfo shortWithoutTiff(std::uint32_t number, std::uint32_t resource1,
                                      std::uint32_t resource2,
                                      AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.capability1c = false;
    family.maxPageNumber = 99999;
    return family;
}

constexpr FamilyInfo withoutTiff(std::uint32_t number, std::uint32_t resource1,
                                 std::uint32_t resource2,
                                 AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.capability1c = false;
    return family;
}

constexpr FamilyInfo streamOnly(std::uint32_t number, std::uint32_t resource1,
                                std::uint32_t resource2, AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.takesOrdo = false;
    family.maxPageNumber = 99999;
    family.accountRule = 1;
    family.sheetMessageLimit = 100;
    family.operatorMessageLimit = 100;
    return family;
}

constexpr FamilyInfo shortDocuments(std::uint32_t number, std::uint32_t resource1,
                                    std::uint32_t resource2,
                                    AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.maxPageNumber = 99999;
    return family;
}

constexpr FamilyInfo strictTexts(std::uint32_t number, std::uint32_t resource1,
                                 std::uint32_t resource2,
                                 AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.takesOrdo = false;
    family.capability1a = false;
    family.capability1b = false;
    family.featureDefault = false;
    family.maxPageNumber = 9999;
    family.jobNameLimit = 40;
    family.jobNameRule = 2;
    family.accountRangeUpper = 12;
    family.accountRangeLower = 3;
    family.accountRule = 2;
    family.sheetMessageLimit = 80;
    family.operatorMessageLimit = 100;
    family.phoneNumberLimit = 19;
    family.requestingUserLimit = 40;
    family.recipientLimit = 40;
    family.traits = {true, false, true, false, true, family.traits.mediaSizeLimits};
    return family;
}

constexpr FamilyInfo withPhoneNumber(std::uint32_t number, std::uint32_t resource1,
                                     std::uint32_t resource2,
                                     AjtPrinterTraits::MediaSizeLimits limits) {
    FamilyInfo family = common(number, resource1, resource2, limits);
    family.phoneNumberLimit = 19;
    return family;
}

// Number, capability documents, media limits (x from, x to, y from, y to).
// clang-format off
constexpr std::array<FamilyInfo, 21> families{{
    shortWithoutTiff( 1, 11512, 11526, {18290, 48770, 18290, 32000}),
    shortWithoutTiff( 2, 11539, 11540, {18290, 48770, 18290, 32000}),
    withoutTiff( 3, 11513, 11527, {18290, 48770, 18290, 32000}),
    withoutTiff( 4, 11537, 11538, {18290, 48770, 18290, 32000}),
    withoutTiff( 5, 11514, 11528, {13970, 57150, 17780, 36400}),
    common( 6, 11502, 11517, {20320, 48870, 25400, 36320}),
    streamOnly( 7, 11503, 11518, {13970, 45720, 10410, 30480}),
    shortDocuments( 8, 11504, 11518, {13970, 45720, 10410, 30480}),
    common( 9, 11535, 11536, {17780, 47000, 25400, 36400}),
    common(10, 11511, 11525, {17780, 47000, 25400, 36400}),
    narrow(11, 11508, 11522, {17800, 47000, 25400, 35600}),
    narrow(12, 11509, 11523, {17800, 47000, 25400, 36400}),
    narrow(13, 11505, 11519, {20300, 21600, 25400, 35600}),
    narrow(14, 11506, 11520, {20300, 21600, 25400, 35600}),
    common(15, 11510, 11524, { 2540, 43180,  2540, 43180}),
    common(16, 11507, 11521, { 2540, 45720,  2540, 43180}),
    strictTexts(17, 11501, 11516, {20300, 43200, 25400, 36300}),
    common(18, 11529, 11530, {20320, 32000, 13970, 46990}),
    common(19, 11531, 11532, {20320, 32000, 13970, 46990}),
    common(20, 11533, 11534, { 2540, 49530,  2540, 71120}),
    withPhoneNumber(21, 11515, 11515, { 2540, 57150,  2540, 71120}),
}};
// clang-format on

} // namespace

std::span<const FamilyInfo> getFamilyTable() { return families; }

} // namespace zent
