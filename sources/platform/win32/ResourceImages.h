#pragma once

#include <cstdint>

#include "platform/ResourceModule.h"
#include "platform/win32/GdiHandles.h"

namespace zent::platform::win32 {

/// A bitmap resource, in the colours of the screen; null if there is none or it isn't sound.
OwnBitmap createBitmap(const ResourceModule& resources, std::uint32_t id);

/// The image of an icon resource that suits a size best, at that size; null as above.
OwnIcon createIcon(const ResourceModule& resources, std::uint32_t id, int width, int height);

} // namespace zent::platform::win32
