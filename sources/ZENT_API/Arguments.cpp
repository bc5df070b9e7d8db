#include "ZENT_API/Arguments.h"

#include <algorithm>
#include <string>

namespace zent {

// Units are converted one by one, since ZentChar isn't char16_t on Windows.

CXString textOf(const ZentChar* argument) {
    CXString text;
    if (argument != nullptr) {
        const auto length = static_cast<std::int32_t>(std::char_traits<ZentChar>::length(argument));
        std::copy_n(argument, length, text.getBuffer(length));
        text.releaseBuffer(length);
    }
    return text;
}

ByteBuffer bytesOf(const void* data, std::uint32_t length) {
    if (data == nullptr && length != 0) {
        throw NullArgument();
    }
    return {data, length};
}

ZentResult handOutText(const CXString& text, ZentChar* buffer, std::uint32_t& size) {
    const std::uint32_t given = size;
    const std::uint32_t needed = static_cast<std::uint32_t>(text.length()) + 1;
    size = needed;
    if (buffer == nullptr) {
        return ZENT_OK;
    }
    if (given < needed) {
        return ZENT_ERR_BUFFER_TOO_SMALL;
    }
    std::transform(text.c_str(), text.c_str() + needed, buffer,
                   [](char16_t unit) { return static_cast<ZentChar>(unit); });
    return ZENT_OK;
}

} // namespace zent
