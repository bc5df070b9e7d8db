#include "ocore/Repair/TicketRepair.h"

#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/Faults/Trace.h"
#include "ocore/Repair/SettingsProblemFixer.h"

namespace zent {

namespace {

bool apply(const Capabilities& capabilities, Settings& ticket, const Settings& defaults,
           bool& hadProblems, const ProblemReporter& reporter) {
    SettingsProblemList problems;
    hadProblems = !validate(capabilities, ticket, problems);
    if (!hadProblems) {
        return true;
    }
    if (reporter.report(problems, defaults) != problemPolicy::repair) {
        return reporter.isSilent();
    }
    SettingsProblemFixer(defaults).fix(problems);
    return true;
}

} // namespace

bool applyCapabilitiesToJobTicket(const Capabilities& capabilities, Settings& ticket,
                                  const Settings& defaults, bool& hadProblems,
                                  const ProblemReporter& reporter) {
    try {
        return apply(capabilities, ticket, defaults, hadProblems, reporter);
    } catch (const std::exception& exception) {
        if (reporter.isSilent()) {
            trace::output(u"Capabilities::applyCapabilitiesToJobTicket(no UI display)");
            trace::output(
                u"Exception thrown while creating the SettingsProblemReporter and calling "
                u"applyCapabilitiesToSettings. " +
                getDetailsReport(exception));
        }
        throw;
    }
}

} // namespace zent
