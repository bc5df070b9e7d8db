#include "ZENT_API/ApplyCapabilities.h"

#include "ZENT_API/Arguments.h"
#include "ocore/Repair/TicketRepair.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/SettingsProblemReporter.h"
#include "resources/ids.h"

namespace zent {

namespace {

constexpr bool offersChoice = true;

bool isSilent(std::uint32_t mode) {
    return mode == ZENT_APPLY_SILENT_REPAIR || mode == ZENT_APPLY_SILENT_KEEP;
}

std::uint32_t policyOf(std::uint32_t mode) {
    const bool keeps = mode == ZENT_APPLY_SILENT_KEEP || mode == ZENT_APPLY_REPORT_KEEP;
    return keeps ? problemPolicy::keep : problemPolicy::repair;
}

CXString titleOf(const ApplyRequest& request) {
    return required(request.title) != 0 ? textOf(request.title)
                                        : ResourceLibrary().getString(IDS_TICKET_CHECK_TITLE);
}

/// Whether the ticket may be used.
bool check(ZENTSession& session, FeatureSettings& ticket, const ApplyRequest& request,
           bool& hadProblems) {
    const Capabilities& capabilities = session.getCapabilities();
    const FeatureSettings& defaults = session.getDefaults().getSettings();
    if (isSilent(request.mode)) {
        return applyCapabilitiesToJobTicket(capabilities, ticket, defaults, hadProblems,
                                            SilentReporter(policyOf(request.mode)));
    }
    const SettingsProblemReporter reporter(request.owner, titleOf(request), offersChoice,
                                           request.mode, policyOf(request.mode));
    return applyCapabilitiesToJobTicket(capabilities, ticket, defaults, hadProblems, reporter);
}

} // namespace

ZentResult applyCapabilities(ZENTSession& session, FeatureSettings& ticket,
                             const ApplyRequest& request, ZentBool& problems, bool& usable) {
    const bool isChanged = ticket.normalize();
    if (request.mode < ZENT_APPLY_SILENT_REPAIR || request.mode > ZENT_APPLY_REPORT_CHOICE) {
        return ZENT_ERR_APPLY_MODE;
    }
    bool hadProblems = false;
    usable = check(session, ticket, request, hadProblems);
    problems = hadProblems;
    if (isChanged || (hadProblems && usable)) {
        session.noteSettingsChanged(ticket);
    }
    return ZENT_OK;
}

} // namespace zent
