#pragma once

namespace zent::platform::qt {

/// Whether widgets can be used on this thread. At the first call an application object is made if
/// the host process has none and a display answers; it stays to the end of the process.
bool hasApplication();

} // namespace zent::platform::qt
