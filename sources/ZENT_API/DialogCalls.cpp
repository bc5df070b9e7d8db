#include "ZENT_API/CallFrame.h"
#include "ocore/CurrentWindowSystem.h"
#include "ocore/Stock/StockInformation.h"
#include "plugin_ui/Features/JobNotesUIDialog.h"

using namespace zent;

namespace {

/// Dialogs that work on the ticket as a whole have their stocks counted.
constexpr bool countsStocks = true;

ZentResult runJobNotes(ZENTSession& session, platform::WindowHandle owner) {
    if (findWindowSystem() == nullptr) {
        return ZENT_ERR_DIALOG_START;
    }
    const Capabilities& capabilities = session.getCapabilities();
    StockInformation stocks(session);
    const std::unique_ptr<StockList> printerStocks = capabilities.getPrinterStocks();
    UIConfiguration configuration{.capabilities = &capabilities,
                                  .stockList = printerStocks.get(),
                                  .preferences = *session.getUserPreferences(),
                                  .stockInformation = &stocks};
    JobNotesUIDialog dialog(configuration, countsStocks, ConfigurableUIComponent::jobLevel);
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

// Of the known kinds that there is no dialog for, each refuses to start.
ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t kind,
                                                  ZentWindow owner, uint32_t /*reserved*/) {
    return inSession(session, u"ZENT::fnInvokeTarvoJobTicketDialog()",
                     [&](ZENTSession& opened) -> ZentResult {
                         if (kind < ZENT_DIALOG_JOB_TICKET || kind > ZENT_DIALOG_JOB_NOTES) {
                             return ZENT_ERR_DIALOG_KIND;
                         }
                         if (kind != ZENT_DIALOG_JOB_NOTES) {
                             return ZENT_ERR_DIALOG_START;
                         }
                         return runJobNotes(opened, owner);
                     });
}

} // extern "C"
