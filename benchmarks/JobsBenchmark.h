#pragma once

namespace zent::bench {

/// Ten thousand tickets on their main way, in a process of their own: a session for each of some
/// printers, opened once; each ticket imported, named, checked and repaired, and its instructions
/// fetched. The name is "jobs/10000", the time that of all; the counters are "rate", the jobs in a
/// second of processor time, and the process's memory in kilobytes after the first thousand and
/// after all, "after-1000" and "after-10000", and at its most, "peak".
void registerJobs();

/// The work of that process: prints what was measured.
void printJobs();
constexpr const char* jobsOption = "--jobs";

} // namespace zent::bench
