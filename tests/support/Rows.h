#pragma once

#include <tuple>
#include <vector>

namespace zent::test {

/// The table of a test, in a loop that names its columns:
///
///     for (const auto& [given, expected] : Rows<const char*, int>{{"a", 1}, {"b", 2}})
template <typename... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

} // namespace zent::test
