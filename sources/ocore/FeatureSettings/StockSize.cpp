// The standard sizes stand in the order in which dialogs offer them, which is also that of their
// codes.

#include "ocore/FeatureSettings/StockSize.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ocore/Resources/ResourceLibrary.h"
#include "platform/KeepForever.h"
#include "resources/ids.h"

namespace zent {

struct StockSize::Row {
    const char16_t* name;
    std::uint32_t code;
    std::int32_t width;
    std::int32_t height;
    std::uint32_t displayStringID;
};

// Two sizes alone are wider than high; a search gives them in that orientation.
// clang-format off
constexpr StockSize::Row StockSize::rows[] = {
    {u"SIZE_UNSPECIFIED", 1, 0, 0, IDS_SIZE_UNSPECIFIED},
    {u"SIZE_8PT5x11", 2, 21600, 27900, IDS_SIZE_8PT5X11},
    {u"SIZE_8PT5x14", 3, 21600, 35600, IDS_SIZE_8PT5X14},
    {u"SIZE_17x11", 4, 43200, 27900, IDS_SIZE_17X11},
    {u"SIZE_9x11", 5, 22900, 27900, IDS_SIZE_9X11},
    {u"SIZE_8PT5x13", 6, 21600, 33000, IDS_SIZE_8PT5X13},
    {u"SIZE_223x297", 7, 22300, 29700, IDS_SIZE_223X297},
    {u"SIZE_A4", 8, 21000, 29700, IDS_SIZE_A4},
    {u"SIZE_A3", 9, 42000, 29700, IDS_SIZE_A3},
    {u"SIZE_ISO_B4", 10, 25000, 35300, IDS_SIZE_ISO_B4},
    {u"SIZE_JIS_B4", 11, 25700, 36400, IDS_SIZE_JIS_B4},
    {u"SIZE_12x18_IN", 12, 30500, 45700, IDS_SIZE_12X18_IN},
    {u"SIZE_SRA3_320x450_MM", 13, 32000, 45000, IDS_SIZE_SRA3_320X450_MM},
    {u"SIZE_B3_353x500_MM", 14, 35300, 50000, IDS_SIZE_B3_353X500_MM},
    {u"SIZE_OTHER", 15, -1, -1, IDS_SIZE_OTHER},
};
// clang-format on

StockSize::StockSize(const Row& row, CXString displayName)
    : m_size(row.code), m_width(row.width), m_height(row.height),
      m_displayName(std::move(displayName)) {}

const std::vector<StockSize>& StockSize::store() {
    static const auto& sizes = keepForever<std::vector<StockSize>>([] {
        const ResourceLibrary resources;
        std::vector<StockSize> built;
        for (const Row& row : rows) {
            built.push_back(StockSize(row, resources.getString(row.displayStringID)));
        }
        return built;
    }());
    return sizes;
}

StockSize::StockSize(std::uint32_t code) {
    const auto& sizes = store();
    const auto found = std::ranges::find(sizes, code, &StockSize::m_size);
    *this = found == sizes.end() ? sizes.front() : *found;
}

StockSize::StockSize(std::int32_t width, std::int32_t height) {
    const auto& sizes = store();
    const auto found =
        std::find_if(std::next(sizes.begin()), sizes.end(), [&](const StockSize& size) {
            return (size.m_width == width && size.m_height == height) ||
                   (size.m_width == height && size.m_height == width);
        });
    *this = found == sizes.end() ? sizes.back() : *found;
    if (found == sizes.end()) {
        m_width = width;
        m_height = height;
    }
}

CXString StockSize::getSizeName() const {
    const auto* const row = std::ranges::find(rows, m_size, &Row::code);
    return row->name;
}

void StockSize::getOrientedDimensions(const SizeLimits& limits, std::int32_t* width,
                                      std::int32_t* height) const {
    *width = m_width;
    *height = m_height;
    if (!limits.contains(m_width, m_height) && limits.contains(m_height, m_width)) {
        std::swap(*width, *height);
    }
}

std::vector<StockSize> StockSize::getSizesWithin(const SizeLimits& limits) {
    std::vector<StockSize> fitting;
    std::copy_if(std::next(store().begin()), store().end(), std::back_inserter(fitting),
                 [&](const StockSize& size) {
        return limits.contains(size.m_width, size.m_height) ||
               limits.contains(size.m_height, size.m_width);
    });
    return fitting;
}

} // namespace zent
