#pragma once

#include <cstdint>

#include <QHash>
#include <QIcon>
#include <QPixmap>

#include "platform/ResourceModule.h"

namespace zent::platform::qt {

/// The bitmaps and icons of a resource library. What isn't there or can't be read is empty.
class Pictures {
public:
    /// The library outlives this.
    explicit Pictures(const ResourceModule& resources) : m_resources(resources) {}

    /// A bitmap, in which all that has the colour of the top left pixel is transparent.
    QPixmap bitmap(std::uint32_t id);
    /// An icon in all the sizes that the resource has.
    QIcon icon(std::uint32_t id) const;

private:
    const ResourceModule& m_resources;
    QHash<std::uint32_t, QPixmap> m_bitmaps;
};

} // namespace zent::platform::qt
