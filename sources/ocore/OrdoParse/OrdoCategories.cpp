// The document format lists for each category the attributes that may stand in it. An attribute
// that no list has can't be written.

#include "ocore/OrdoParse/OrdoCategories.h"

#include <algorithm>
#include <array>

namespace zent {

namespace {

using enum OrdoCategory;

struct Row {
    std::u16string_view attribute;
    OrdoCategory category;
};

// The rows are in the order of the document format's own lists. "color-effects-type" stands in its
// list twice.
// clang-format off
constexpr Row rows[] = {
    {u"job-name",                                 operation},
    {u"document-name",                            operation},
    {u"document-format",                          operation},
    {u"document-uri",                             operation},
    {u"compression",                              operation},
    {u"job-k-octets",                             operation},
    {u"job-impressions",                          operation},
    {u"requesting-user-name",                     operation},
    {u"job-media-sheets",                         operation},
    {u"job-password",                             operation},
    {u"job-password-encryption",                  operation},
    {u"job-priority",                             jobTemplate},
    {u"job-hold-until",                           jobTemplate},
    {u"job-sheets",                               jobTemplate},
    {u"multiple-document-handling",               jobTemplate},
    {u"copies",                                   jobTemplate},
    {u"finishings",                               jobTemplate},
    {u"page-ranges",                              jobTemplate},
    {u"sides",                                    jobTemplate},
    {u"number-up",                                jobTemplate},
    {u"orientation-requested",                    jobTemplate},
    {u"media",                                    jobTemplate},
    {u"printer-resolution",                       jobTemplate},
    {u"print-quality",                            jobTemplate},
    {u"output-bin",                               jobTemplate},
    {u"cover-back",                               jobTemplate},
    {u"cover-front",                              jobTemplate},
    {u"imposition-template",                      jobTemplate},
    {u"insert-sheet",                             jobTemplate},
    {u"job-account-id",                           jobTemplate},
    {u"job-accounting-sheets",                    jobTemplate},
    {u"job-error-sheet",                          jobTemplate},
    {u"job-message-to-operator",                  jobTemplate},
    {u"job-recipient-name",                       jobTemplate},
    {u"job-save-disposition",                     jobTemplate},
    {u"job-sheets-col",                           jobTemplate},
    {u"job-sheet-message",                        jobTemplate},
    {u"media-col",                                jobTemplate},
    {u"page-delivery",                            jobTemplate},
    {u"page-order-received",                      jobTemplate},
    {u"separator-sheets",                         jobTemplate},
    {u"sheet-collate",                            jobTemplate},
    {u"x-image-auto-center",                      jobTemplate},
    {u"x-image-shift",                            jobTemplate},
    {u"x-side1-image-shift",                      jobTemplate},
    {u"x-side2-image-shift",                      jobTemplate},
    {u"y-image-auto-center",                      jobTemplate},
    {u"y-image-shift",                            jobTemplate},
    {u"y-side1-image-shift",                      jobTemplate},
    {u"y-side2-image-shift",                      jobTemplate},
    {u"document-overrides",                       jobTemplate},
    {u"page-overrides",                           jobTemplate},
    {u"pages-per-subset",                         jobTemplate},
    {u"black-overprint",                          jobTemplate},
    {u"adjust-cyan-red",                          jobTemplate},
    {u"adjust-magenta-green",                     jobTemplate},
    {u"adjust-yellow-blue",                       jobTemplate},
    {u"adjust-contrast",                          jobTemplate},
    {u"adjust-lightness",                         jobTemplate},
    {u"adjust-saturation",                        jobTemplate},
    {u"color-destination-profile-back",           jobTemplate},
    {u"color-destination-profile-front",          jobTemplate},
    {u"color-effects-type",                       jobTemplate},
    {u"color-emulation",                          jobTemplate},
    {u"force-front-side",                         jobTemplate},
    {u"print-from-saved-attributes",              jobTemplate},
    {u"trapping",                                 jobTemplate},
    {u"rendering-intent-graphics",                jobTemplate},
    {u"rendering-intent-images",                  jobTemplate},
    {u"rendering-intent-text",                    jobTemplate},
    {u"color-effects-type",                       jobTemplate},
    {u"source-cmy-graphics",                      jobTemplate},
    {u"undefined-source-cmy-graphics",            jobTemplate},
    {u"source-cmy-images",                        jobTemplate},
    {u"undefined-source-cmy-images",              jobTemplate},
    {u"source-cmy-text",                          jobTemplate},
    {u"undefined-source-cmy-text",                jobTemplate},
    {u"source-cmyk-graphics",                     jobTemplate},
    {u"undefined-source-cmyk-graphics",           jobTemplate},
    {u"source-cmyk-images",                       jobTemplate},
    {u"undefined-source-cmyk-images",             jobTemplate},
    {u"source-cmyk-text",                         jobTemplate},
    {u"undefined-source-cmyk-text",               jobTemplate},
    {u"source-gray-graphics",                     jobTemplate},
    {u"undefined-source-gray-graphics",           jobTemplate},
    {u"source-gray-images",                       jobTemplate},
    {u"undefined-source-gray-images",             jobTemplate},
    {u"source-gray-text",                         jobTemplate},
    {u"undefined-source-gray-text",               jobTemplate},
    {u"source-rgb-graphics",                      jobTemplate},
    {u"undefined-source-rgb-graphics",            jobTemplate},
    {u"source-rgb-images",                        jobTemplate},
    {u"undefined-source-rgb-images",              jobTemplate},
    {u"source-rgb-text",                          jobTemplate},
    {u"undefined-source-rgb-text",                jobTemplate},
    {u"trc",                                      jobTemplate},
    {u"trc-type",                                 jobTemplate},
    {u"trc-name",                                 jobTemplate},
    {u"trc-cyan-data",                            jobTemplate},
    {u"trc-magenta-data",                         jobTemplate},
    {u"trc-yellow-data",                          jobTemplate},
    {u"trc-black-data",                           jobTemplate},
    {u"bleed-edge-printing",                      jobTemplate},
    {u"finishings-col",                           jobTemplate},
    {u"finishing-template",                       jobTemplate},
    {u"stitching",                                jobTemplate},
    {u"stitching-reference-edge",                 jobTemplate},
    {u"stitching-offset",                         jobTemplate},
    {u"stitching-locations",                      jobTemplate},
    {u"anti-aliasing",                            jobTemplate},
    {u"opi-image-insertion",                      jobTemplate},
    {u"opi-image-pre-scan",                       jobTemplate},
    {u"resource-pre-scan",                        jobTemplate},
    {u"lead-edge-conditioning",                   jobTemplate},
    {u"print-document-uri",                       jobTemplate},
    {u"resource-cleanup",                         jobTemplate},
    {u"font-name-requested",                      jobTemplate},
    {u"font-size-requested",                      jobTemplate},
    {u"job-accounting-user-id",                   jobTemplate},
    {u"proof-print",                              jobTemplate},
    {u"color-depth-yyy",                          jobTemplate},
    {u"job-hold-until-time",                      jobTemplate},
    {u"feed-orientation",                         jobTemplate},
    {u"media-input-tray-check",                   jobTemplate},
    {u"presentation-direction",                   jobTemplate},
    {u"x-image-position",                         jobTemplate},
    {u"y-image-position",                         jobTemplate},
    {u"page-rotation",                            jobTemplate},
    {u"highlight-colorant",                       jobTemplate},
    {u"highlight-map-color",                      jobTemplate},
    {u"highlight-map",                            jobTemplate},
    {u"highlight-colorant-mismatch",              jobTemplate},
    {u"job-phone-number",                         jobTemplate},
    {u"halftone-text",                            jobTemplate},
    {u"halftone-graphics",                        jobTemplate},
    {u"halftone-images",                          jobTemplate},
    {u"trap-width-slow",                          jobTemplate},
    {u"trap-width-fast",                          jobTemplate},
    {u"pdl-init-file",                            jobTemplate},
    {u"qrts-tape-characteristics",                jobTemplate},
    {u"resample-method",                          jobTemplate},
    {u"sample-set",                               jobTemplate},
    {u"sample-sheet",                             jobTemplate},
    {u"adjust-bw-darkness-col",                   jobTemplate},
    {u"toner-saver",                              jobTemplate},
    {u"job-retention-period",                     jobTemplate},
    {u"job-history-period",                       jobTemplate},
    {u"job-accounting-data",                      jobTemplate},
    {u"adjust-bw-darkness-mode",                  jobTemplate},
    {u"adjust-bw-darkness-value",                 jobTemplate},
    {u"job-offset",                               jobTemplate},
    {u"forms-col",                                jobTemplate},
    {u"form-save",                                jobTemplate},
    {u"imposition-gutter-creep-x",                jobTemplate},
    {u"imposition-gutter-creep-y",                jobTemplate},
    {u"imposition-creep-policy",                  jobTemplate},
    {u"imposition-gutter-dimension-x",            jobTemplate},
    {u"imposition-gutter-dimension-y",            jobTemplate},
    {u"imposition-mark-front",                    jobTemplate},
    {u"imposition-number-up-x",                   jobTemplate},
    {u"imposition-number-up-y",                   jobTemplate},
    {u"imposition-rotate-policy",                 jobTemplate},
    {u"imposition-rotate-policy-order",           jobTemplate},
    {u"imposition-scale",                         jobTemplate},
    {u"imposition-size-policy",                   jobTemplate},
    {u"imposition-source-orientation",            jobTemplate},
    {u"imposition-source-page-dimension-col",     jobTemplate},
    {u"pcl-paper-source-col",                     jobTemplate},
    {u"highlight-map-color-custom-col",           jobTemplate},
};
// clang-format on

/// The rows in order of their names, for lookup.
constexpr auto rowsByName = [] {
    auto sorted = std::to_array(rows);
    std::ranges::sort(sorted, {}, &Row::attribute);
    return sorted;
}();

} // namespace

OrdoCategory findOrdoCategory(std::u16string_view attribute) {
    const auto* const row = std::ranges::lower_bound(rowsByName, attribute, {}, &Row::attribute);
    const bool isFound = row != rowsByName.end() && row->attribute == attribute;
    return isFound ? row->category : none;
}

std::u16string_view nameOf(OrdoCategory category) {
    return category == operation ? u"ordo-operation-attributes" : u"job-template-attributes";
}

} // namespace zent
