#include "FirstSessions.h"

#include <cstdio>

#include "ChildProcess.h"
#include "TicketSession.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"

namespace zent::bench {

namespace {

double measureSession() {
    const double begin = getProcessorSeconds();
    openAndClose();
    return getProcessorSeconds() - begin;
}

} // namespace

FirstSessions measureFirstSessions() {
    const std::vector<double> seconds = runChild(firstSessionsOption);
    return {seconds.at(0), seconds.at(1)};
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
