#include "ChildProcess.h"

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace zent::bench {

namespace {

struct ClosePipe {
    void operator()(std::FILE* pipe) const { pclose(pipe); }
};

} // namespace

std::vector<double> runChild(const char* option) {
    static const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = program + " " + option;
    const std::unique_ptr<std::FILE, ClosePipe> output(popen(command.c_str(), "r"));
    std::vector<double> numbers;
    double number = 0;
    while (output && std::fscanf(output.get(), "%lf", &number) == 1) {
        numbers.push_back(number);
    }
    if (numbers.empty()) {
        throw std::runtime_error("the program can't be started anew");
    }
    return numbers;
}

double getProcessorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace zent::bench
