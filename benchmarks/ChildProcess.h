#pragma once

#include <vector>

namespace zent::bench {

/// Starts this program anew, with an option, and gives the numbers that it prints.
std::vector<double> runChild(const char* option);

double getProcessorSeconds();

} // namespace zent::bench
