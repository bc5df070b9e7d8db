#include "platform/win32/DeviceName.h"

#include <algorithm>
#include <string>

namespace zent::platform {

namespace {

/// Puts ASCII letters into upper case and makes all separators backslashes.
std::u16string normalized(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& unit : result) {
        unit = unit == u'/' ? u'\\' : unit;
        unit = static_cast<char16_t>(unit >= u'a' && unit <= u'z' ? unit - u'a' + u'A' : unit);
    }
    return result;
}

bool hasDrive(std::u16string_view path) {
    return path.size() >= 2 && path[0] >= u'A' && path[0] <= u'Z' && path[1] == u':';
}

/// Whether a path begins with a prefix of the system's own names of objects, and leads to no drive
/// or share.
bool isInDeviceNamespace(std::u16string_view path) {
    if (!path.starts_with(u"\\\\?\\")) {
        return path.starts_with(u"\\\\.\\") || path.starts_with(u"\\??\\");
    }
    path.remove_prefix(4);
    return !hasDrive(path) && !path.starts_with(u"UNC\\") && !path.starts_with(u"VOLUME{");
}

/// The part of a path by which the system finds a device: the last name, without what follows a dot
/// or colon, and without spaces before that.
std::u16string_view baseOf(std::u16string_view path) {
    path = path.substr(0, path.find_last_not_of(u'\\') + 1);
    path.remove_prefix(path.find_last_of(u'\\') + 1); // all is left where there is no backslash
    path.remove_prefix(hasDrive(path) ? 2 : 0);
    path = path.substr(0, path.find_first_of(u".:"));
    return path.substr(0, path.find_last_not_of(u' ') + 1);
}

bool isPort(std::u16string_view base) {
    // The superscript digits of Latin-1 are digits here too.
    constexpr std::u16string_view digits = u"123456789\u00B9\u00B2\u00B3";
    return base.size() == 4 && (base.starts_with(u"COM") || base.starts_with(u"LPT")) &&
           digits.find(base.back()) != digits.npos;
}

bool isOtherDevice(std::u16string_view base) {
    constexpr std::u16string_view names[] = {u"AUX",     u"CLOCK$", u"CON", u"CONIN$",
                                             u"CONOUT$", u"NUL",    u"PRN"};
    return std::ranges::find(names, base) != std::end(names);
}

} // namespace

bool isDeviceName(std::u16string_view path) {
    const std::u16string normal = normalized(path);
    const std::u16string_view base = baseOf(normal);
    return isInDeviceNamespace(normal) || isPort(base) || isOtherDevice(base);
}

} // namespace zent::platform
