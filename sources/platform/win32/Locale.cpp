#include "platform/Locale.h"

#include <cwctype>

#include "platform/win32/WideText.h"

namespace zent::platform {

namespace {

/// A text of the user's default locale into a buffer of that many units, terminator included;
/// empty on failure.
template <std::size_t capacity>
std::u16string getLocaleText(LCTYPE type) {
    wchar_t text[capacity] = {};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, static_cast<int>(capacity));
    return length > 1 ? units(text) : u"";
}

} // namespace

std::u16string getLocaleMeasurement() { return getLocaleText<2>(LOCALE_IMEASURE); }

std::u16string getLocalePaperSize() { return getLocaleText<8>(LOCALE_IPAPERSIZE); }

// The C library's classes are those of Unicode here, whatever the locale.
bool isLetterOrDigit(char16_t unit) { return std::iswalnum(unit) != 0; }

} // namespace zent::platform
