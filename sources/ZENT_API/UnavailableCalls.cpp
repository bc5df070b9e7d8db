// The calls that this version of the library only declares.

#include "ZENT_API/UnavailableCall.h"

#include "ZENT_API/CallFrame.h"

using namespace zent;

namespace {

ZentResult unavailable(ZentSessionType session, const char16_t* location) {
    return inSession(session, location,
                     [](ZENTSession& /*opened*/) -> ZentResult { throw UnavailableCall(); });
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnGetPrintInstructions(ZentSessionType session, void* /*buffer*/,
                                            uint32_t* /*size*/, const char* /*documentName*/) {
    return unavailable(session, u"ZENT::fnGetPrintInstructions()");
}

// The name in the report differs from the call's; support staff know it by that.
ZentResult ZENT_CALL fnApplyPrinterCapabilitiesToSettings(ZentSessionType session,
                                                          uint32_t /*mode*/, ZentWindow /*owner*/,
                                                          const ZentChar* /*title*/,
                                                          ZentBool* /*problems*/,
                                                          ZentBool* /*usable*/) {
    return unavailable(session, u"ZENT::fnApplyPrinterCapabilitiesToSettingsSilently()");
}

ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t /*kind*/,
                                                  ZentWindow /*owner*/, uint32_t /*reserved*/) {
    return unavailable(session, u"ZENT::fnInvokeTarvoJobTicketDialog()");
}

} // extern "C"
