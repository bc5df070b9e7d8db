#include "platform/CodePage.h"

#include <limits>
#include <new>

#include "platform/win32/WideText.h"

namespace zent::platform {

namespace {

int checkedLength(std::size_t length) {
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::bad_alloc();
    }
    return static_cast<int>(length);
}

} // namespace

std::u16string fromAnsi(std::string_view narrow) {
    if (narrow.empty()) {
        return {};
    }
    const int length = checkedLength(narrow.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, narrow.data(), length, nullptr, 0);
    std::u16string result(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, narrow.data(), length, wide(result.data()), needed);
    return result;
}

std::string toAnsi(std::u16string_view text) {
    if (text.empty()) {
        return {};
    }
    const int length = checkedLength(text.size());
    const wchar_t* source = wide(text.data());
    const int needed = WideCharToMultiByte(CP_ACP, 0, source, length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, source, length, result.data(), needed, nullptr, nullptr);
    return result;
}

} // namespace zent::platform
