#include "ocore/Attributes/PrimitiveInteger.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace zent {

CXString PrimitiveInteger::getIppValue() const {
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), m_value).ptr;
    std::array<char16_t, 16> wide{};
    const auto* wideEnd = std::copy(digits.data(), end, wide.data());
    return CXString(
        std::u16string_view(wide.data(), static_cast<std::size_t>(wideEnd - wide.data())));
}

bool PrimitiveInteger::isEqual(const AttrValue& other) const {
    return isSameKind(other) && static_cast<const PrimitiveInteger&>(other).m_value == m_value;
}

std::int32_t PrimitiveInteger::parseInteger(const CXString& text) {
    const std::u16string_view all = text.view();
    const std::size_t first = all.find_first_not_of(u" \t\n\v\f\r");
    if (first == std::u16string_view::npos) {
        return 0;
    }
    std::u16string_view rest = all.substr(first);
    const bool negative = rest.front() == u'-';
    if (negative || rest.front() == u'+') {
        rest.remove_prefix(1);
    }
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max();
    std::int64_t number = 0;
    for (const char16_t unit : rest) {
        if (unit < u'0' || unit > u'9') {
            break;
        }
        number = std::min(number * 10 + (unit - u'0'), limit + 1);
    }
    return static_cast<std::int32_t>(negative ? -number : std::min(number, limit));
}

std::unique_ptr<AttrValue> IppInteger::clone() const { return std::make_unique<IppInteger>(*this); }

std::unique_ptr<AttrValue> IppEnum::clone() const { return std::make_unique<IppEnum>(*this); }

} // namespace zent
