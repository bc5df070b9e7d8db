#pragma once

namespace zent::platform {

/// A window of the application, or null.
using WindowHandle = void*;

} // namespace zent::platform
