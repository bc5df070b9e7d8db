// The benchmarks: what the library's calls cost beside their floors and beside other libraries, all
// in one run. tools/bench-table makes a table of the result.

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include <benchmark/benchmark.h>

#include "BlobBenchmark.h"
#include "CheckBenchmark.h"
#include "DialogBenchmark.h"
#include "FeatureBenchmark.h"
#include "FirstSessions.h"
#include "InstructionsBenchmark.h"
#include "JobsBenchmark.h"
#include "SessionBenchmark.h"
#include "TicketBenchmark.h"
#include "support/ScratchUser.h"

int main(int argc, char** argv) {
    try {
        if (argc == 2 && std::string_view(argv[1]) == zent::bench::firstSessionsOption) {
            zent::bench::printFirstSessions();
            return EXIT_SUCCESS;
        }
        if (argc == 2 && std::string_view(argv[1]) == zent::bench::jobsOption) {
            zent::bench::printJobs();
            return EXIT_SUCCESS;
        }
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
            return EXIT_FAILURE;
        }
        const zent::test::ScratchUser user;
        zent::bench::SessionBenchmark sessions;
        zent::bench::TicketBenchmark tickets(ZENT_DTD_PATH);
        zent::bench::BlobBenchmark blobs;
        zent::bench::CheckBenchmark checks;
        zent::bench::InstructionsBenchmark instructions;
        zent::bench::FeatureBenchmark features;
        zent::bench::DialogBenchmark dialogs;
        sessions.registerAll();
        tickets.registerAll();
        blobs.registerAll();
        checks.registerAll();
        instructions.registerAll();
        zent::bench::registerJobs();
        features.registerAll();
        dialogs.registerAll();
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
    } catch (const std::exception& exception) {
        std::cerr << "The benchmarks fail: " << exception.what() << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
