#include "platform/Locale.h"

#include <bit>
#include <clocale>
#include <cstdint>
#include <cwctype>
#include <memory>
#include <type_traits>

#include <langinfo.h>

namespace zent::platform {

namespace {

struct LocaleFreer {
    void operator()(locale_t locale) const { freelocale(locale); }
};
using UserLocale = std::unique_ptr<std::remove_pointer_t<locale_t>, LocaleFreer>;

/// One category of what the environment asks for; null if no such locale is installed.
UserLocale openUserLocale(int categoryMask) {
    return UserLocale(newlocale(categoryMask, "", nullptr));
}

/// Millimetres. The C library hands these numbers out in the place of a text's address.
std::uint32_t getLength(nl_item item, const UserLocale& locale) {
    const char* number = nl_langinfo_l(item, locale.get());
    return static_cast<std::uint32_t>(std::bit_cast<std::uintptr_t>(number));
}

struct Paper {
    std::uint32_t width; // millimetres
    std::uint32_t height;
    const char16_t* code;
};
constexpr Paper papers[] = {
    {216, 279, u"1"},
    {216, 356, u"5"},
    {297, 420, u"8"},
    {210, 297, u"9"},
};

} // namespace

std::u16string getLocaleMeasurement() {
    const UserLocale locale = openUserLocale(LC_MEASUREMENT_MASK);
    if (locale == nullptr) {
        return {};
    }
    switch (*nl_langinfo_l(_NL_MEASUREMENT_MEASUREMENT, locale.get())) {
    case 1:
        return u"0";
    case 2:
        return u"1";
    default:
        return {};
    }
}

std::u16string getLocalePaperSize() {
    const UserLocale locale = openUserLocale(LC_PAPER_MASK);
    if (locale == nullptr) {
        return {};
    }
    const std::uint32_t width = getLength(_NL_PAPER_WIDTH, locale);
    const std::uint32_t height = getLength(_NL_PAPER_HEIGHT, locale);
    for (const Paper& paper : papers) {
        if (paper.width == width && paper.height == height) {
            return paper.code;
        }
    }
    return {};
}

bool isLetterOrDigit(char16_t unit) {
    const UserLocale locale = openUserLocale(LC_CTYPE_MASK);
    return (locale != nullptr ? iswalnum_l(unit, locale.get()) : iswalnum(unit)) != 0;
}

} // namespace zent::platform
