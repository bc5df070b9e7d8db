#pragma once

#include <string>

namespace zent::bench {

/// Tickets as the library writes them, made through the exported calls.

/// A ticket like those of most jobs: some 15 elements.
std::string makeSmallTicket();
/// Every feature that can stand in a document, sets with several members, covers, inserts, paper
/// sources and some page overrides.
std::string makeFullTicket();
/// A ticket with a number of page overrides, each of other pages.
std::string makeOverridesTicket(int count);

} // namespace zent::bench
