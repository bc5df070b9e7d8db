#pragma once

namespace zent::platform {

/// What the library is told by the system's loader. The adapters call these; sources/ZENT_API
/// answers them.
void onProcessDetach();
void onThreadDetach();

} // namespace zent::platform
