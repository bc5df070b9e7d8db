#include "FirstSessions.h"

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "TicketSession.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"

namespace zent::bench {

namespace {

struct ClosePipe {
    void operator()(std::FILE* pipe) const { pclose(pipe); }
};

double processorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double measureSession() {
    const double begin = processorSeconds();
    openAndClose();
    return processorSeconds() - begin;
}

} // namespace

FirstSessions measureFirstSessions() {
    static const std::string command =
        std::filesystem::read_symlink("/proc/self/exe").string() + " " + firstSessionsOption;
    const std::unique_ptr<std::FILE, ClosePipe> output(popen(command.c_str(), "r"));
    FirstSessions seconds;
    if (!output || std::fscanf(output.get(), "%lf %lf", &seconds.first, &seconds.second) != 2) {
        throw std::runtime_error("the program can't be started anew");
    }
    return seconds;
}

void printFirstSessions() {
    static_cast<void>(FeatureDataBase());
    static_cast<void>(FeatureValueDataBase());
    static_cast<void>(CapabilityDataBase());
    ZNXMLInterface::Instance();
    const double first = measureSession();
    std::printf("%.9f %.9f\n", first, measureSession());
}

} // namespace zent::bench
