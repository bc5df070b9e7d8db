#pragma once

// What nearly every test reads, so that it is read once for all. A source includes what it uses all
// the same: builds with sanitizers go without this.

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
