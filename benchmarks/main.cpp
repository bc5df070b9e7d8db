// The benchmarks: what the library's calls cost beside their floors and beside other libraries, all
// in one run. tools/bench-table makes a table of the result.

#include <cstdlib>
#include <exception>
#include <iostream>

#include <benchmark/benchmark.h>

#include "FeatureBenchmark.h"
#include "TicketBenchmark.h"

int main(int argc, char** argv) {
    try {
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
            return EXIT_FAILURE;
        }
        zent::bench::TicketBenchmark tickets(ZENT_DTD_PATH);
        zent::bench::FeatureBenchmark features;
        tickets.registerAll();
        features.registerAll();
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
    } catch (const std::exception& exception) {
        std::cerr << "The benchmarks fail: " << exception.what() << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
