#include "ZENT_API/CallFrame.h"

using namespace zent;

extern "C" {

// There is no window system to show a dialog on, so that each of the known kinds refuses to start.
ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t kind,
                                                  ZentWindow /*owner*/, uint32_t /*reserved*/) {
    return inSession(session, u"ZENT::fnInvokeTarvoJobTicketDialog()",
                     [&](ZENTSession& /*opened*/) -> ZentResult {
                         const bool isKnown =
                             kind >= ZENT_DIALOG_JOB_TICKET && kind <= ZENT_DIALOG_JOB_NOTES;
                         return isKnown ? ZENT_ERR_DIALOG_START : ZENT_ERR_DIALOG_KIND;
                     });
}

} // extern "C"
