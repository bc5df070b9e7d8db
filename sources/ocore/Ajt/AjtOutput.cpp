#include "ocore/Ajt/AjtOutput.h"

#include <charconv>
#include <limits>

namespace zent::ajt {

Output& Output::operator<<(std::int32_t number) {
    char digits[std::numeric_limits<std::int32_t>::digits10 + 2]; // all digits and the sign
    const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
    m_bytes.append(std::begin(digits), end);
    return *this;
}

} // namespace zent::ajt
