#include <memory>

#include "ZENT_API/CallFrame.h"
#include "ocore/Stock/StockInformation.h"
#include "ocore/Stock/StockList.h"
#include "plugin_ui/Features/DialogTable.h"
#include "plugin_ui/Features/JobNotesUIFeature.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

using namespace zent;

namespace {

/// What the components of a dialog share, together with the objects that it points to.
struct DialogContext {
    explicit DialogContext(ZENTSession& session)
        : ticketStocks(session),
          printerStocks(StockList::createFromCapabilities(session.getCapabilities())),
          configuration(UIConfiguration::forPrinter(session, *printerStocks, ticketStocks)) {}

    StockInformation ticketStocks;
    std::unique_ptr<StockList> printerStocks;
    UIConfiguration configuration;
};

ZentResult runJobNotes(ZENTSession& session, platform::WindowHandle owner,
                       UIConfiguration& configuration) {
    if (findWindowSystem() == nullptr) {
        return ZENT_ERR_DIALOG_START;
    }
    JobNotesUIDialog dialog(configuration, ConfigurableUIComponent::jobLevel);
    if (!dialog.configure()) {
        return ZENT_ERR_DIALOG_START;
    }
    if (dialog.runModal(owner, session.settings())) {
        session.noteDialogAccepted();
    }
    return ZENT_OK;
}

} // namespace

extern "C" {

// The context comes before the kind: a failure in it is reported for any kind. A known kind without
// a dialog refuses to start.
ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t kind,
                                                  ZentWindow owner, uint32_t /*reserved*/) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        DialogContext context(opened);
        if (kind < ZENT_DIALOG_JOB_TICKET || kind > ZENT_DIALOG_JOB_NOTES) {
            return ZENT_ERR_DIALOG_KIND;
        }
        if (kind != ZENT_DIALOG_JOB_NOTES) {
            return ZENT_ERR_DIALOG_START;
        }
        return runJobNotes(opened, owner, context.configuration);
    });
}

} // extern "C"
