#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Text/CXString.h"

namespace zent {

/// The widths and heights that a printer takes, bounds inclusive, in hundredths of a millimetre.
struct SizeLimits {
    std::int32_t lowestWidth = 0;
    std::int32_t highestWidth = 0;
    std::int32_t lowestHeight = 0;
    std::int32_t highestHeight = 0;

    bool contains(std::int32_t width, std::int32_t height) const {
        return width >= lowestWidth && width <= highestWidth && height >= lowestHeight &&
               height <= highestHeight;
    }
};

/// A standard media size, or another one. Dimensions are in hundredths of a millimetre. The display
/// names come from the resource library, which must be within reach at the first use.
class StockSize {
public:
    static constexpr std::uint32_t codeUnspecified = 1;
    static constexpr std::uint32_t codeOther = 15;

    /// Makes the unspecified size.
    StockSize() : StockSize(codeUnspecified) {}
    /// Finds a size by its code; a code that isn't known gives the unspecified size.
    explicit StockSize(std::uint32_t code);
    /// Finds the standard size of these dimensions, either way round, in the table's own
    /// orientation; other dimensions give "SIZE_OTHER", which keeps them.
    StockSize(std::int32_t width, std::int32_t height);

    std::uint32_t getSize() const { return m_size; }
    std::int32_t getWidth() const { return m_width; }
    std::int32_t getHeight() const { return m_height; }
    const CXString& getDisplayName() const { return m_displayName; }
    /// The name of the code, such as "SIZE_A4".
    CXString getSizeName() const;
    bool isUnspecified() const { return m_size == codeUnspecified; }
    std::int32_t getShortEdge() const { return m_width < m_height ? m_width : m_height; }
    std::int32_t getLongEdge() const { return m_width < m_height ? m_height : m_width; }

    /// The dimensions, turned if only that fits the limits.
    void getOrientedDimensions(const SizeLimits& limits, std::int32_t* width,
                               std::int32_t* height) const;
    /// The standard sizes that fit the limits in at least one orientation, in table order.
    static std::vector<StockSize> getSizesWithin(const SizeLimits& limits);

private:
    struct Row;
    static const Row rows[15];
    static const std::vector<StockSize>& store();
    StockSize(const Row& row, CXString displayName);

    std::uint32_t m_size = codeUnspecified;
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
    CXString m_displayName;
};

} // namespace zent
