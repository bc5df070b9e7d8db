#pragma once

// What nearly every test uses, precompiled. A source includes what it needs beyond this.

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/ScratchUser.h"
#include "support/TestFile.h"

namespace zent::test {

/// The table of a test, in a loop that names its columns:
///
///     for (const auto& [given, expected] : Rows<const char*, int>{{"a", 1}, {"b", 2}})
template <typename... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

} // namespace zent::test
