// What Capabilities does with tickets.

#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Faults/Trace.h"
#include "ocore/Repair/SettingsProblemFixer.h"
#include "plugin_ui/Reports/ExceptionReport.h"
#include "plugin_ui/Reports/SettingsProblemReporter.h"

namespace zent {

bool Capabilities::validate(Settings& settings, SettingsProblemList& problems) const {
    return SettingsValidator(*this, problems).validate(*settings.getAttrNodeList());
}

bool Capabilities::applyCapabilitiesToJobTicket(Settings& ticket, const Settings& defaults,
                                                bool& hadProblems,
                                                const SettingsProblemReporter& reporter) const {
    SettingsProblemList problems;
    hadProblems = !validate(ticket, problems);
    if (!hadProblems) {
        return true;
    }
    if (reporter.report(problems, defaults) != problemPolicy::repair) {
        return reporter.isSilent();
    }
    SettingsProblemFixer(defaults).fix(problems);
    return true;
}

bool Capabilities::applyCapabilitiesToJobTicket(Settings& ticket, const Settings& defaults,
                                                bool& hadProblems, std::uint32_t policy) const {
    try {
        return applyCapabilitiesToJobTicket(ticket, defaults, hadProblems,
                                            SettingsProblemReporter(policy));
    } catch (const std::exception& exception) {
        trace::output(u"Capabilities::applyCapabilitiesToJobTicket(no UI display)");
        trace::output(u"Exception thrown while creating the SettingsProblemReporter and calling "
                      u"applyCapabilitiesToSettings. " +
                      getDetailsReport(exception));
        throw;
    }
}

} // namespace zent
