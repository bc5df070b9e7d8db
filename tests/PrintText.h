#pragma once

#include <iomanip>
#include <ostream>

#include "ocore/Text/CXString.h"

namespace zent {

/// How GoogleTest shows a text.
inline void PrintTo(const CXString& text, std::ostream* out) {
    *out << std::quoted(text.toNarrow());
}

} // namespace zent
