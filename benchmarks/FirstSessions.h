#pragma once

namespace zent::bench {

/// What the two first sessions of a process take, in seconds of processor time, each opened and
/// closed. Tables and the XML system, which are made once in a process, are there before.
struct FirstSessions {
    double first = 0;
    double second = 0;
};

/// Starts this program anew, with the option below, to measure them.
FirstSessions measureFirstSessions();

/// The work of that process: prints both numbers.
void printFirstSessions();
constexpr const char* firstSessionsOption = "--first-sessions";

} // namespace zent::bench
