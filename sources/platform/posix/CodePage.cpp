#include "platform/CodePage.h"

#include "platform/Utf8.h"

namespace zent::platform {

std::u16string fromAnsi(std::string_view narrow) { return fromUtf8(narrow); }
std::string toAnsi(std::u16string_view wide) { return toUtf8(wide); }

} // namespace zent::platform
