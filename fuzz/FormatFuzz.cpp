// Hostile formats with arguments of every type: CXString::Format and formatText.
//
// Input: the number of arguments, one byte for the kind of each, and the format, a byte a unit.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "FuzzInput.h"
#include "ocore/Text/CXString.h"

namespace {

using zent::CXString;
using zent::FormatArgument;
using zent::fuzz::unitOf;

constexpr std::size_t mostArguments = 8;
constexpr std::int32_t longestResult = 1 << 20;

const CXString longText(std::u16string_view(std::u16string(700, u'\u4E2D')));

const std::vector<FormatArgument>& everyArgument() {
    static const std::vector<FormatArgument> all{
        FormatArgument(0),
        FormatArgument(-1),
        FormatArgument(std::numeric_limits<std::int32_t>::min()),
        FormatArgument(std::numeric_limits<std::int64_t>::min()),
        FormatArgument(std::numeric_limits<std::uint64_t>::max()),
        FormatArgument(70000),
        FormatArgument(0xD800),
        FormatArgument(0.0),
        FormatArgument(-1.0 / 3),
        FormatArgument(std::numeric_limits<double>::max()),
        FormatArgument(std::numeric_limits<double>::denorm_min()),
        FormatArgument(std::numeric_limits<double>::infinity()),
        FormatArgument(std::nan("")),
        FormatArgument(u"wide \U0001F5A8 text"),
        FormatArgument(std::u16string_view()),
        FormatArgument(static_cast<const char16_t*>(nullptr)),
        FormatArgument("narrow \xE2\x82\xAC text \xFF"),
        FormatArgument(static_cast<const char*>(nullptr)),
        FormatArgument(longText),
        FormatArgument(static_cast<const void*>(&longText)),
        FormatArgument(nullptr),
    };
    return all;
}

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

const CXString& checked(const CXString& text) {
    require(text.length() >= 0 && text.length() <= longestResult);
    require(text.c_str()[text.length()] == u'\0');
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::size_t count = size > 0 ? data[0] % (mostArguments + 1) : 0;
    if (size < 1 + count) {
        return 0;
    }
    std::vector<FormatArgument> a(mostArguments, everyArgument().front());
    for (std::size_t i = 0; i < count; ++i) {
        a[i] = everyArgument()[data[1 + i] % everyArgument().size()];
    }
    std::string narrow;
    std::u16string wide;
    for (std::size_t i = 1 + count; i < size; ++i) {
        narrow += static_cast<char>(data[i]);
        wide += unitOf(data[i]);
    }

    const CXString text =
        checked(CXString::Format(wide.c_str(), a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]));
    const std::u16string_view format(wide.c_str());
    require(format.find(u'%') != std::u16string_view::npos || text == format);
    checked(zent::formatText(narrow, zent::FormatArguments(a).first(count)));
    return 0;
}
