#pragma once

#include <cstdint>

namespace zent {

/// The typed form of a resolution attribute; unspecified unless it is made of numbers.
class Resolution {
public:
    Resolution() = default;
    Resolution(std::int32_t crossFeed, std::int32_t feedDirection, std::int32_t units)
        : m_unspecified(false), m_crossFeed(crossFeed), m_feedDirection(feedDirection),
          m_units(units) {}

    bool isUnspecified() const { return m_unspecified; }
    std::int32_t getCrossFeed() const { return m_crossFeed; }
    std::int32_t getFeedDirection() const { return m_feedDirection; }
    /// 3 for dots per inch, 4 for dots per centimetre.
    std::int32_t getUnits() const { return m_units; }

    bool operator==(const Resolution&) const = default;

private:
    bool m_unspecified = true;
    std::int32_t m_crossFeed = 0;
    std::int32_t m_feedDirection = 0;
    std::int32_t m_units = 0;
};

} // namespace zent
