#include "Unit.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace jobticket {

namespace {

constexpr const char* hundredthsOfMillimetre = "1/100 mm";
constexpr std::int32_t any = std::numeric_limits<std::int32_t>::min();

struct Row {
    zent::FeatureEnum feature;
    Unit unit;
};

constexpr Unit noUnit = {"", any};
constexpr Unit colorComponent = {"", 0};
constexpr Unit shift = {hundredthsOfMillimetre, any};
constexpr Unit dimension = {hundredthsOfMillimetre, 1};
constexpr Unit pageNumber = {"page number", 1};

// In the order of the features' numbers.
constexpr std::array rows = {
    Row{2, {"", 1}},                  // copies
    Row{6, pageNumber},               // page-ranges
    Row{18, {"form number", 1}},      // form-cycle-start
    Row{19, shift},                   // forms-x-image-shift
    Row{20, shift},                   // forms-y-image-shift
    Row{38, shift},                   // x-side1-image-shift
    Row{39, shift},                   // y-side1-image-shift
    Row{40, shift},                   // x-side2-image-shift
    Row{41, shift},                   // y-side2-image-shift
    Row{42, shift},                   // x-image-shift
    Row{43, shift},                   // y-image-shift
    Row{48, colorComponent},          // color-srgb-red
    Row{49, colorComponent},          // color-srgb-green
    Row{50, colorComponent},          // color-srgb-blue
    Row{51, colorComponent},          // color-hsv-hue
    Row{52, colorComponent},          // color-hsv-saturation
    Row{53, colorComponent},          // color-hsv-value
    Row{54, colorComponent},          // color-device-cmyk-cyan
    Row{55, colorComponent},          // color-device-cmyk-magenta
    Row{56, colorComponent},          // color-device-cmyk-yellow
    Row{57, colorComponent},          // color-device-cmyk-black
    Row{61, {"", 0}},                 // trap-width-fast
    Row{62, {"", 0}},                 // trap-width-slow
    Row{90, {"pages", 1}},            // pages-per-subset
    Row{91, pageNumber},              // force-front-side
    Row{99, dimension},               // x-dimension
    Row{100, dimension},              // y-dimension
    Row{103, {"sheets", 1}},          // media-order-count
    Row{105, {"holes", 0}},           // media-hole-count
    Row{106, {"g/m2", 1}},            // media-weight-metric
    Row{113, dimension},              // media-size
    Row{115, {"document number", 1}}, // input-documents
    Row{116, pageNumber},             // pages
    Row{117, {"page number", 0}},     // insert-after-page-number
    Row{118, {"sheets", 1}},          // insert-count
};

} // namespace

const Unit& getUnit(zent::FeatureEnum feature) {
    const auto row = std::lower_bound(
        rows.begin(), rows.end(), feature,
        [](const Row& candidate, zent::FeatureEnum wanted) { return candidate.feature < wanted; });
    return row != rows.end() && row->feature == feature ? row->unit : noUnit;
}

bool isLength(const Unit& unit) { return std::string_view(unit.name) == hundredthsOfMillimetre; }

std::string lengthInMillimetres(std::int32_t hundredths) {
    const std::int64_t size = std::abs(std::int64_t(hundredths));
    std::string text = (hundredths < 0 ? "-" : "") + std::to_string(size / 100);
    if (const std::int64_t rest = size % 100; rest != 0) {
        text += rest < 10 ? ".0" : ".";
        text += std::to_string(rest % 10 == 0 ? rest / 10 : rest);
    }
    return text + " mm";
}

std::string withUnit(std::int32_t number, const Unit& unit) {
    if (isLength(unit)) {
        return lengthInMillimetres(number);
    }
    const std::string_view name = unit.name;
    std::string text = std::to_string(number);
    // "Insert after page: 12" says already what the number is.
    if (!name.empty() && name.find("number") == std::string_view::npos) {
        text.append(" ").append(name);
        if (number == 1 && text.ends_with('s')) {
            text.pop_back();
        }
    }
    return text;
}

} // namespace jobticket
